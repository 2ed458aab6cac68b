#include "ConfigurationDialog.h"
#include "DataFolderChoice.h"
#include "HostNames.h"
#include "HostWindow.h"
#include "LanguageChoice.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "upload/UploadNames.h"
#include "upload/UploadTargets.h"

#include "FolderFaults.h"
#include "MessageBoxAnswer.h"
#include "TemporaryDataFolder.h"
#include "editor/ZvScheduleEditor.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

using Zavo::ConfigurationDialog;
using Zavo::UploadTarget;
using Zavo::ZvEditorConfig;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::TemporaryDataFolder;

namespace DataFolderChoice = Zavo::DataFolderChoice;
namespace HostNames = Zavo::HostNames;
namespace UploadNames = Zavo::UploadNames;

class tst_Configuration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsWhatHolds();
    void storesWhatWasChanged();
    void writesNothingWithoutAChange();
    void leavesEverythingOnCancel();
    void keepsForeignLines();
    void refusesAFolder_data();
    void refusesAFolder();
    void takesTheFolderBack();
    void tellsOfAFileThatCannotBeWritten();
    void targetsRestDuringAnUpload();
    void explainsEveryControl();
    void opensFromTheMenu();
    void choiceYieldsToTheEnvironment();
    void choosesALanguage();
    void passesOverAChoiceThatMakesNoSense();

private:
    void show(bool targetsAreInUse = false);
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    void setAll(const QString &folder) const;
    void press(QDialogButtonBox::StandardButton button) const;
    QByteArray file() const { return m_folder->read(QStringLiteral("config.ini")); }

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<ConfigurationDialog> m_dialog;
};

void tst_Configuration::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
}

void tst_Configuration::cleanup()
{
    m_dialog.reset();
    m_folder.reset();
}

void tst_Configuration::show(bool targetsAreInUse)
{
    ZvEditorConfig::reload();
    m_dialog = std::make_unique<ConfigurationDialog>(targetsAreInUse);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

void tst_Configuration::setAll(const QString &folder) const
{
    find<QLineEdit>(HostNames::dataFolderField)->selectAll();
    QTest::keyClicks(find<QLineEdit>(HostNames::dataFolderField), folder);
    QTest::keyClick(find<QCheckBox>(HostNames::allInOneBox), Qt::Key_Space);
    QTest::keyClick(find<QCheckBox>(HostNames::defaultFirstBox), Qt::Key_Space);
    find<QSpinBox>(HostNames::removingDurationBox)->selectAll();
    QTest::keyClicks(find<QSpinBox>(HostNames::removingDurationBox), QStringLiteral("30"));
}

void tst_Configuration::press(QDialogButtonBox::StandardButton button) const
{
    QTest::mouseClick(m_dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
}

void tst_Configuration::showsWhatHolds()
{
    m_folder->write(QStringLiteral("config.ini"), "[General]\nAllInOne=true\nRemovingDuration=7\n");
    DataFolderChoice::store(QStringLiteral("/srv/zavo"));
    Zavo::UploadTargets::store({{UploadTarget(QStringLiteral("/mnt/a")), false}});
    show();
    QCOMPARE(find<QLineEdit>(HostNames::dataFolderField)->text(), QStringLiteral("/srv/zavo"));
    QVERIFY(find<QCheckBox>(HostNames::allInOneBox)->isChecked());
    QVERIFY(!find<QCheckBox>(HostNames::defaultFirstBox)->isChecked());
    QCOMPARE(find<QSpinBox>(HostNames::removingDurationBox)->value(), 7);
    const auto *const tree = find<QTreeWidget>(UploadNames::targetList);
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("/mnt/a"));
    QCOMPARE(tree->topLevelItem(0)->checkState(0), Qt::Unchecked);
}

void tst_Configuration::storesWhatWasChanged()
{
    Zavo::UploadTargets::store({{UploadTarget(QStringLiteral("/mnt/a")), true},
                                {UploadTarget(QStringLiteral("/mnt/b")), true}});
    show();
    const QString folder = m_folder->filePath(QStringLiteral("other"));
    setAll(folder);
    auto *const tree = find<QTreeWidget>(UploadNames::targetList);
    tree->setCurrentItem(tree->topLevelItem(0));
    QTest::mouseClick(find<QPushButton>(UploadNames::removeButton), Qt::LeftButton);
    press(QDialogButtonBox::Ok);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(DataFolderChoice::stored(), folder);
    QVERIFY(!QFile::exists(folder));
    QCOMPARE(Zavo::UploadTargets::load().size(), 1);
    QVERIFY(ZvEditorConfig::getConfig()->allInOne());
    QVERIFY(ZvEditorConfig::getConfig()->defaultScheduleUsedFirst());
    QCOMPARE(ZvEditorConfig::getConfig()->removingDuration(), 30);
    const Zavo::ZvConfig written(m_folder->filePath(QStringLiteral("config.ini")));
    QVERIFY(written.allInOne() && written.defaultScheduleUsedFirst());
    QCOMPARE(written.removingDuration(), 30);
}

void tst_Configuration::writesNothingWithoutAChange()
{
    show();
    press(QDialogButtonBox::Ok);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("config.ini"))));
}

void tst_Configuration::leavesEverythingOnCancel()
{
    show();
    setAll(QStringLiteral("/srv/other"));
    press(QDialogButtonBox::Cancel);
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("config.ini"))));
    QCOMPARE(DataFolderChoice::stored(), QString());
    QVERIFY(!ZvEditorConfig::getConfig()->allInOne());
}

void tst_Configuration::keepsForeignLines()
{
    m_folder->write(QStringLiteral("config.ini"),
                    "; mine\n[General]\nOther=1\nAllInOne=false\n\n[Player]\nVolume=7\n");
    show();
    setAll(QString());
    press(QDialogButtonBox::Ok);
    QVERIFY(file().startsWith("; mine\n[General]\nOther=1\nAllInOne=true\n"));
    QVERIFY(file().contains("[Player]\nVolume=7\n"));
}

void tst_Configuration::refusesAFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("relative") << "zavo";
    QTest::newRow("dots") << "../zavo";
    QTest::newRow("home") << "~/zavo";
    QTest::newRow("a file") << "/etc/passwd";
    QTest::newRow("below a file") << "/etc/passwd/zavo";
}

void tst_Configuration::refusesAFolder()
{
    QFETCH(QString, folder);
    show();
    setAll(folder);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).title(QStringLiteral("Configuration"));
    press(QDialogButtonBox::Ok);
    QVERIFY(answer.isDone());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(DataFolderChoice::stored(), QString());
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("config.ini"))));
}

void tst_Configuration::takesTheFolderBack()
{
    DataFolderChoice::store(QStringLiteral("/srv/zavo"));
    show();
    find<QLineEdit>(HostNames::dataFolderField)->clear();
    press(QDialogButtonBox::Ok);
    QCOMPARE(DataFolderChoice::stored(), QString());
}

void tst_Configuration::tellsOfAFileThatCannotBeWritten()
{
    show();
    setAll(m_folder->filePath(QStringLiteral("other")));
    const ZavoTest::ReadOnlyFolder readOnly(m_folder->path());
    if (!readOnly.isEffective())
        QSKIP("this machine cannot make a folder read-only");
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).icon(QMessageBox::Critical);
    press(QDialogButtonBox::Ok);
    QVERIFY(answer.isDone());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(DataFolderChoice::stored(), QString());
    QVERIFY(!ZvEditorConfig::getConfig()->allInOne());
}

void tst_Configuration::targetsRestDuringAnUpload()
{
    Zavo::UploadTargets::store({{UploadTarget(QStringLiteral("/mnt/a")), true}});
    show(true);
    QVERIFY(!find<QPushButton>(UploadNames::addButton)->isEnabled());
    Zavo::UploadTargets::store({{UploadTarget(QStringLiteral("/mnt/b")), true}});
    press(QDialogButtonBox::Ok);
    QCOMPARE(Zavo::UploadTargets::load().constFirst().target.address(), QStringLiteral("/mnt/b"));
}

void tst_Configuration::explainsEveryControl()
{
    show();
    for (const auto *name :
         {HostNames::languageBox, HostNames::dataFolderField, HostNames::allInOneBox,
          HostNames::defaultFirstBox, HostNames::removingDurationBox}) {
        const auto *const control = find<QWidget>(name);
        QVERIFY2(!control->accessibleDescription().isEmpty(), name);
        QCOMPARE(control->statusTip(), control->accessibleDescription());
        const QList<QLabel *> labels = m_dialog->findChildren<QLabel *>();
        QVERIFY2(std::any_of(labels.begin(), labels.end(),
                             [control](const QLabel *label) {
                                 return label->text() == control->statusTip();
                             }),
                 name);
    }
}

void tst_Configuration::opensFromTheMenu()
{
    Zavo::HostWindow window;
    QString message;
    QVERIFY(window.start(&message));
    window.show();
    auto *const action = window.findChild<QAction *>(QLatin1String(HostNames::configurationAction));
    QVERIFY(action);
    bool wasShown = false;
    QTimer::singleShot(0, this, [&wasShown] {
        QWidget *const dialog = QApplication::activeModalWidget();
        wasShown = qobject_cast<ConfigurationDialog *>(dialog) != nullptr;
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    action->trigger();
    QVERIFY(wasShown);
    window.close();
}

void tst_Configuration::choiceYieldsToTheEnvironment()
{
    DataFolderChoice::store(QStringLiteral("/srv/zavo"));
    const QByteArray fromEnvironment = qgetenv("ZAVO_DATA_DIR");
    qputenv("ZAVO_DATA_DIR", "/srv/named");
    ZvEditorConfig::setDataDir({});
    DataFolderChoice::apply();
    QCOMPARE(ZvEditorConfig::dataDir(), QStringLiteral("/srv/named"));
    qunsetenv("ZAVO_DATA_DIR");
    DataFolderChoice::apply();
    QCOMPARE(ZvEditorConfig::dataDir(), QStringLiteral("/srv/zavo"));
    qputenv("ZAVO_DATA_DIR", fromEnvironment);
    ZvEditorConfig::setDataDir(m_folder->path());
}

void tst_Configuration::choosesALanguage()
{
    show();
    auto *box = find<QComboBox>(HostNames::languageBox);
    QCOMPARE(box->currentText(), QStringLiteral("As in the system"));
    m_folder->settings()->setValue(QLatin1String(HostNames::languageKey), QStringLiteral("ja"));
    show();
    box = find<QComboBox>(HostNames::languageBox);
    QCOMPARE(box->currentText(), QStringLiteral("日本語"));
    QTest::keyClick(box, Qt::Key_Home);
    press(QDialogButtonBox::Ok);
    QCOMPARE(Zavo::LanguageChoice::stored(), QString());
}

void tst_Configuration::passesOverAChoiceThatMakesNoSense()
{
    m_folder->settings()->setValue(QLatin1String(HostNames::languageKey), QStringLiteral("none"));
    QCOMPARE(Zavo::LanguageChoice::stored(), QString());
    for (const auto *folder : {"", "zavo", "../x"}) {
        m_folder->settings()->setValue(QLatin1String(HostNames::dataFolderKey),
                                       QLatin1String(folder));
        QCOMPARE(DataFolderChoice::stored(), QString());
    }
}

QTEST_MAIN(tst_Configuration)
#include "tst_configuration.moc"
