#include "ScreenshotTaker.h"

#include <QImage>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using Zavo::ScreenshotTaker;

class tst_ScreenshotTaker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void waitsForTabs();
    void writesWhatIsShown();
    void givesUpWithoutTabs();
    void tellsOfAFileThatCannotBeWritten_data();
    void tellsOfAFileThatCannotBeWritten();

private:
    QTabWidget *addTabWidget();
    QString picture() const { return m_folder->filePath(QStringLiteral("picture")); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QMainWindow> m_window;
};

void tst_ScreenshotTaker::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<QMainWindow>();
    m_window->resize(320, 240);
    m_window->show();
}

QTabWidget *tst_ScreenshotTaker::addTabWidget()
{
    auto *const tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("ScheduleTabWidget"));
    m_window->setCentralWidget(tabs);
    return tabs;
}

void tst_ScreenshotTaker::waitsForTabs()
{
    ScreenshotTaker taker(m_window.get(), picture());
    QSignalSpy done(&taker, SIGNAL(done(bool,QString)));
    taker.start();
    QTest::qWait(400);
    QTabWidget *const tabs = addTabWidget();
    QTest::qWait(400);
    QCOMPARE(done.count(), 0);
    QVERIFY(!QFile::exists(picture()));
    tabs->addTab(new QWidget, QStringLiteral("Channel"));
    QVERIFY(done.wait());
    QCOMPARE(done.first().at(0).toBool(), true);
    QTest::qWait(100);
    QCOMPARE(done.count(), 1);
}

void tst_ScreenshotTaker::writesWhatIsShown()
{
    auto *const page = new QWidget;
    page->setAutoFillBackground(true);
    page->setPalette(QPalette(Qt::red));
    addTabWidget()->addTab(page, QStringLiteral("Channel"));
    ScreenshotTaker taker(m_window.get(), picture());
    QSignalSpy done(&taker, SIGNAL(done(bool,QString)));
    taker.start();
    QVERIFY(done.wait());
    QCOMPARE(done.first().at(1).toString(), QString());
    // The format is PNG whatever the file is called.
    const QImage image(picture(), "PNG");
    QCOMPARE(image.size(), m_window->size());
    QCOMPARE(image.pixelColor(160, 180), QColor(Qt::red));
}

void tst_ScreenshotTaker::givesUpWithoutTabs()
{
    addTabWidget();
    ScreenshotTaker taker(m_window.get(), picture());
    QSignalSpy done(&taker, SIGNAL(done(bool,QString)));
    taker.start(100);
    QVERIFY(done.wait());
    QCOMPARE(done.first().at(0).toBool(), false);
    QVERIFY(!done.first().at(1).toString().isEmpty());
    QVERIFY(!QFile::exists(picture()));
}

void tst_ScreenshotTaker::tellsOfAFileThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder is missing") << "none/picture.png";
    QTest::newRow("is a folder") << ".";
}

void tst_ScreenshotTaker::tellsOfAFileThatCannotBeWritten()
{
    QFETCH(QString, name);
    addTabWidget()->addTab(new QWidget, QStringLiteral("Channel"));
    ScreenshotTaker taker(m_window.get(), m_folder->filePath(name));
    QSignalSpy done(&taker, SIGNAL(done(bool,QString)));
    taker.start();
    QVERIFY(done.wait());
    QCOMPARE(done.first().at(0).toBool(), false);
    QVERIFY(done.first().at(1).toString().contains(m_folder->path()));
}

QTEST_MAIN(tst_ScreenshotTaker)
#include "tst_screenshottaker.moc"
