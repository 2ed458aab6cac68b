#pragma once

#include <QCoreApplication>
#include <QPointer>

#include <optional>

class QMessageBox;
class QWidget;

namespace Zavo {

/// Asks about one modified channel after the other whether to save it, and remembers an answer that
/// holds for all. One box serves for all questions; it is a child of the widget that asks.
class SavePrompt final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::SavePrompt)

public:
    enum Reason { BeforeClosing = 1, BeforeUploading = 2 };
    enum class Answer { Save, Skip, Cancel };

    /// @p reason is a Reason. Only before uploading the whole can be cancelled.
    SavePrompt(int reason, QWidget *parent);

    /// What to do with the modified channel @p channelName. Asks unless an earlier answer holds.
    Answer ask(const QString &channelName);

private:
    Answer take(int button);

    bool m_uploading = false;
    QPointer<QMessageBox> m_box;
    std::optional<Answer> m_forAll;
};

} // namespace Zavo
