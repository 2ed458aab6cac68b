#include "HostNames.h"
#include "HostWindow.h"
#include "ZvChannel.h"
#include "ZvEditorConfig.h"
#include "channels/ChannelConfigurationDialog.h"
#include "channels/ChannelSettings.h"
#include "upload/UploadCollection.h"

#include "ChannelFiles.h"
#include "FolderFaults.h"
#include "MessageBoxAnswer.h"
#include "SlowDisk.h"
#include "TemporaryDataFolder.h"
#include "editor/ZvScheduleEditor.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>

using Zavo::ChannelConfigurationDialog;
using Zavo::ChannelSettings;
using Zavo::UploadCollection;
using Zavo::UploadSet;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::TemporaryDataFolder;

namespace HostNames = Zavo::HostNames;

class tst_ChannelConfiguration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsTheChannels();
    void leavesOutWhatIsNotChecked();
    void keepsTheBasicChannel();
    void cancelChangesNothing();
    void forgetsChannelsThatAreGone();
    void standsOddSettings_data();
    void standsOddSettings();
    void tellsOfAFileThatCannotBeWritten();
    void opensWithManyChannels();
    void showsItsProgressOnASlowDisk();
    void opensFromTheMenu();

private:
    void write(int number, const QString &name);
    void show();
    QTreeWidget *tree() const
    {
        return m_dialog->findChild<QTreeWidget *>(QLatin1String(HostNames::channelTree));
    }
    void toggle(int row) const;
    void press(QDialogButtonBox::StandardButton button) const;
    QByteArray settings() const { return m_folder->read(QStringLiteral("channel/settings.ini")); }

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<ChannelConfigurationDialog> m_dialog;
};

void tst_ChannelConfiguration::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    write(0, QStringLiteral("Lobby"));
    write(1, QStringLiteral("Canteen"));
    write(2, QStringLiteral("Gate & <b>Yard</b>"));
}

void tst_ChannelConfiguration::cleanup()
{
    m_dialog.reset();
    m_folder.reset();
}

void tst_ChannelConfiguration::write(int number, const QString &name)
{
    QVERIFY(!ZavoTest::writeChannelFile(*m_folder, ZavoTest::channelFileName(number),
                                        {number, number, name})
                 .isEmpty());
}

void tst_ChannelConfiguration::show()
{
    m_dialog = std::make_unique<ChannelConfigurationDialog>();
    m_dialog->show();
    const auto *const ok = m_dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QTRY_VERIFY_WITH_TIMEOUT(ok->isEnabled(), 30000);
}

void tst_ChannelConfiguration::toggle(int row) const
{
    tree()->setCurrentItem(tree()->topLevelItem(row));
    QTest::keyClick(tree(), Qt::Key_Space);
}

void tst_ChannelConfiguration::press(QDialogButtonBox::StandardButton button) const
{
    QTest::mouseClick(m_dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
}

void tst_ChannelConfiguration::showsTheChannels()
{
    QVERIFY(QFile::copy(m_folder->filePath(QStringLiteral("channel/channel0.xml")),
                        m_folder->filePath(QStringLiteral("channel/channel.xml"))));
    m_folder->write(QStringLiteral("channel/channel9.xml"), "damaged");
    show();
    QCOMPARE(tree()->topLevelItemCount(), 4);
    QCOMPARE(tree()->topLevelItem(0)->text(0), QStringLiteral("Lobby"));
    QCOMPARE(tree()->topLevelItem(2)->text(0), QStringLiteral("Gate & <b>Yard</b>"));
    QCOMPARE(tree()->topLevelItem(2)->text(1), QStringLiteral("2"));
    QCOMPARE(tree()->topLevelItem(2)->text(2), QStringLiteral("channel2.xml"));
    QCOMPARE(tree()->topLevelItem(2)->text(3), QStringLiteral("1"));
    QVERIFY(!tree()->topLevelItem(2)->text(4).isEmpty());
    for (int row = 0; row < 3; ++row)
        QCOMPARE(tree()->topLevelItem(row)->checkState(0), Qt::Checked);
    const QTreeWidgetItem *const damaged = tree()->topLevelItem(3);
    QCOMPARE(damaged->text(2), QStringLiteral("channel9.xml"));
    QVERIFY(!damaged->data(0, Qt::CheckStateRole).isValid());
}

void tst_ChannelConfiguration::leavesOutWhatIsNotChecked()
{
    show();
    toggle(1);
    press(QDialogButtonBox::Ok);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    UploadCollection collection(m_folder->path());
    collection.start();
    QVERIFY(collection.wait(30000));
    const UploadSet &set = collection.set();
    QCOMPARE(set.problem, QString());
    QCOMPARE(set.channelCount, 2);
    QCOMPARE(QDir(set.folder->filePath(QStringLiteral("channel"))).entryList(QDir::Files),
             QStringList({QStringLiteral("channel0.xml"), QStringLiteral("channel2.xml")}));
    QCOMPARE(set.remarks, QStringList{QStringLiteral(
                              "The channel \"Canteen\" stays here by the channel configuration.")});
    show();
    QCOMPARE(tree()->topLevelItem(1)->checkState(0), Qt::Unchecked);
    toggle(1);
    press(QDialogButtonBox::Ok);
    QVERIFY(ChannelSettings(m_folder->path()).isUploaded(1));
}

void tst_ChannelConfiguration::keepsTheBasicChannel()
{
    show();
    toggle(0);
    QCOMPARE(tree()->topLevelItem(0)->checkState(0), Qt::Checked);
    ChannelSettings settings(m_folder->path());
    settings.setUploaded(0, false);
    QVERIFY(settings.isUploaded(0));
}

void tst_ChannelConfiguration::cancelChangesNothing()
{
    show();
    toggle(1);
    press(QDialogButtonBox::Cancel);
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("channel/settings.ini"))));
}

void tst_ChannelConfiguration::forgetsChannelsThatAreGone()
{
    m_folder->write(QStringLiteral("channel/settings.ini"),
                    "; mine\n[General]\nOther=1\nNotUploaded=2,77\n");
    show();
    press(QDialogButtonBox::Ok);
    QCOMPARE(settings(), QByteArray("; mine\n[General]\nOther=1\nNotUploaded=2\n"));
}

void tst_ChannelConfiguration::standsOddSettings_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no list") << QByteArray("[General]\nNotUploaded=all\n");
    QTest::newRow("empty list") << QByteArray("[General]\nNotUploaded=,,\n");
    QTest::newRow("huge number") << QByteArray("[General]\nNotUploaded=99999999999999999999\n");
    QTest::newRow("basic") << QByteArray("[General]\nNotUploaded=0\n");
    QTest::newRow("noise") << QByteArray("\0\xff\x01[[[=", 7);
}

void tst_ChannelConfiguration::standsOddSettings()
{
    QFETCH(QByteArray, text);
    m_folder->write(QStringLiteral("channel/settings.ini"), text);
    const ChannelSettings settings(m_folder->path());
    for (int id : {0, 1, 2})
        QVERIFY(settings.isUploaded(id));
}

void tst_ChannelConfiguration::tellsOfAFileThatCannotBeWritten()
{
    show();
    toggle(1);
    const ZavoTest::ReadOnlyFolder readOnly(m_folder->channelFolder());
    if (!readOnly.isEffective())
        QSKIP("this machine cannot make a folder read-only");
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok)
        .title(QStringLiteral("Channel Configuration"))
        .icon(QMessageBox::Critical);
    press(QDialogButtonBox::Ok);
    QVERIFY(answer.isDone());
    QVERIFY(m_dialog->isVisible());
    QVERIFY(ChannelSettings(m_folder->path()).isUploaded(1));
}

void tst_ChannelConfiguration::opensWithManyChannels()
{
    for (int number = 3; number < 300; ++number)
        write(number, QStringLiteral("Ch.%1").arg(number));
    QElapsedTimer clock;
    clock.start();
    m_dialog = std::make_unique<ChannelConfigurationDialog>();
    m_dialog.reset();
    QVERIFY2(clock.elapsed() < 5000, "a dialog that is closed waits for all channels");
    show();
    QCOMPARE(tree()->topLevelItemCount(), 300);
    QCOMPARE(tree()->topLevelItem(299)->text(0), QStringLiteral("Ch.299"));
}

void tst_ChannelConfiguration::showsItsProgressOnASlowDisk()
{
    for (int number = 0; number < 40; ++number)
        write(number, QStringLiteral("Hall"));
    const ZavoTest::SlowDisk slow;
    m_dialog = std::make_unique<ChannelConfigurationDialog>();
    m_dialog->show();
    const QList<QLabel *> labels = m_dialog->findChildren<QLabel *>();
    const auto tells = [&labels](const QString &text) {
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel *label) { return label->text().contains(text); });
    };
    QTRY_VERIFY_WITH_TIMEOUT(tells(QStringLiteral("of 40...")), 60000);
    QTRY_COMPARE_WITH_TIMEOUT(tree()->topLevelItemCount(), 40, 60000);
    QVERIFY(!tells(QStringLiteral("of 40...")));
}

void tst_ChannelConfiguration::opensFromTheMenu()
{
    Zavo::HostWindow window;
    QString message;
    QVERIFY(window.start(&message));
    window.show();
    auto *const action = window.editor()->getAction(QStringLiteral("Action_Channel_Configuration"));
    QVERIFY(action->isEnabled());
    bool wasShown = false;
    QTimer::singleShot(0, this, [&wasShown] {
        QWidget *const dialog = QApplication::activeModalWidget();
        wasShown = qobject_cast<ChannelConfigurationDialog *>(dialog) != nullptr;
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    action->trigger();
    QVERIFY(wasShown);
    window.close();
}

QTEST_MAIN(tst_ChannelConfiguration)
#include "tst_channelconfiguration.moc"
