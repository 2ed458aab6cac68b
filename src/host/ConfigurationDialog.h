#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QSpinBox;
class QVBoxLayout;

namespace Zavo {

class UploadTargetList;

/// Shows and changes what the program is configured by: the language and the data folder of the
/// user, the file "config.ini" of the data folder that is open, and the targets of uploads. Nothing
/// is stored until the dialog is accepted, and then either all of it or, with a message, nothing.
class ConfigurationDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p targetsAreInUse is true during an upload, when its targets cannot be edited.
    explicit ConfigurationDialog(bool targetsAreInUse, QWidget *parent = nullptr);

    void accept() override;

private Q_SLOTS:
    void browse();

private:
    QGroupBox *createLanguageBox();
    QGroupBox *createFolderBox();
    QGroupBox *createFileBox();
    QGroupBox *createTargetBox(bool targetsAreInUse);
    QString chosenFolder() const;
    bool checkFolder();
    bool writeFile();
    void complain(const QString &message);

    QComboBox *m_language = nullptr;
    QLineEdit *m_folder = nullptr;
    QCheckBox *m_allInOne = nullptr;
    QCheckBox *m_defaultScheduleUsedFirst = nullptr;
    QSpinBox *m_removingDuration = nullptr;
    UploadTargetList *m_targets = nullptr;
};

} // namespace Zavo
