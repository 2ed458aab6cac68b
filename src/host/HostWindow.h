#pragma once

#include <QMainWindow>

#include <memory>

class QMenu;

namespace Zavo {

class CheckDialog;
class ExportDialog;
class GuideDialog;
class ScenePurger;
class Shortcuts;
class UploadDialog;
class ZvScheduleEditor;

/// The program's window: it holds the editor, shows its menus and a help menu, and answers the
/// editor's requests. It knows the editor only by its exported class.
class HostWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// While one lives, the window does not close: something asks in the middle of a save.
    class Busy final
    {
        Q_DISABLE_COPY(Busy)

    public:
        explicit Busy(HostWindow *window)
            : m_window(window)
        {
            ++m_window->m_busyCount;
        }
        ~Busy() { --m_window->m_busyCount; }

    private:
        HostWindow *m_window = nullptr;
    };

    explicit HostWindow(QWidget *parent = nullptr);

    /// Gives up the editor without asking about unsaved channels; closing the window asks.
    ~HostWindow() override;

    /// Starts the editor on the data folder of ZvEditorConfig. False, with the reason in
    /// @p message, if it cannot start.
    bool start(QString *message);

    ZvScheduleEditor *editor() const;

    /// Gives the commands the keys that a person has chosen. To be called once all are in the
    /// menus.
    void applyShortcuts();

    /// The session is about to end. Closes the editor, which asks about unsaved channels, if
    /// @p mayAsk. False if the session should wait because the user could not be asked, or is just
    /// being asked something else.
    bool endSession(bool mayAsk);

public Q_SLOTS:
    void showVersionInformation();

    /// Shows the user's guide, which stays open beside the editor.
    void showGuide();

    /// The next click explains what it is on.
    void explain();

    /// Shows the configuration of the program and waits until it is closed.
    void showConfiguration();

    /// Shows the keys of all commands and waits until that is closed.
    void showShortcuts();

    /// Shows the channels as they are saved and waits until that is closed.
    void showChannelConfiguration();

    /// Shows the upload manager, which stays open beside the editor.
    void showUploadManager();

    /// Checks the data folder beside the work in the window.
    void checkData();

    /// Shows the exporter for the channel of that file.
    void showChannelExporter(const QString &channelFilePath);

Q_SIGNALS:
    /// The editor has finished and the window is closed; the program may end. Emitted once.
    void finished();

protected:
    void closeEvent(QCloseEvent *event) override;

private Q_SLOTS:
    void onEditorClosed();

private:
    void takeDefaultSize();
    QMenu *createToolsMenu();
    QMenu *createHelpMenu();
    void connectEditor();
    void closeEditor();
    bool confirmEndOfUpload();
    Shortcuts *shortcuts();

    std::unique_ptr<Shortcuts> m_shortcuts; // null until somebody asks for them
    ScenePurger *m_scenePurger = nullptr;
    ZvScheduleEditor *m_editor = nullptr;
    UploadDialog *m_uploadDialog = nullptr; // null until it is first asked for
    GuideDialog *m_guideDialog = nullptr;   // the same
    ExportDialog *m_exportDialog = nullptr; // the same
    CheckDialog *m_checkDialog = nullptr;   // the same
    int m_busyCount = 0;
    bool m_closing = false;
    bool m_editorClosed = false;
};

} // namespace Zavo
