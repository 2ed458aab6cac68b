#include "ClearButton.h"
#include "HostWindow.h"
#include "TemporaryDataFolder.h"
#include "guide/GuideBrowser.h"
#include "guide/GuideDialog.h"
#include "guide/GuideNames.h"

#include <QAction>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QtTest>

using namespace Zavo;
using ZavoTest::TemporaryDataFolder;

namespace {

QList<QTextFragment> fragmentsOf(const QTextDocument &document)
{
    QList<QTextFragment> fragments;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            fragments.append(it.fragment());
    }
    return fragments;
}

QStringList linksOf(const QTextDocument &document)
{
    QStringList links;
    const QList<QTextFragment> fragments = fragmentsOf(document);
    for (const QTextFragment &fragment : fragments) {
        const QString link = fragment.charFormat().anchorHref();
        if (!link.isEmpty() && !links.contains(link))
            links.append(link);
    }
    return links;
}

} // namespace

class tst_Guide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void isThereOnce();
    void isNotWaitedFor();
    void pagesAreWhole_data();
    void pagesAreWhole();
    void linksLeadToPagesAndHeadings();
    void goesBackAndForth();
    void findsWhatAMessageSays();
    void findsNothing();
    void isClosedByEscapeAndKeepsItsPlace();

private:
    template<typename Widget>
    Widget *part(const char *name) const
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    GuideBrowser *browser() const { return part<GuideBrowser>(GuideNames::browser); }
    // The last one in the page.
    void clickLink(const QString &target) const;

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<HostWindow> m_window;
    QPointer<GuideDialog> m_dialog;
};

void tst_Guide::initTestCase()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_window = std::make_unique<HostWindow>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(!m_window->findChild<GuideDialog *>());
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    m_dialog = m_window->findChild<GuideDialog *>();
    QVERIFY(m_dialog);
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    QCOMPARE(m_dialog->focusWidget(), browser());
}

void tst_Guide::init()
{
    m_window->showGuide();
    part<QLineEdit>(GuideNames::findField)->clear();
    browser()->setSource(QUrl(QLatin1String(GuideNames::firstPage)));
    browser()->moveCursor(QTextCursor::Start);
    browser()->clearHistory();
}

void tst_Guide::cleanupTestCase()
{
    m_window.reset();
    QVERIFY(!m_dialog);
    m_folder.reset();
    ZavoTest::waitForClearButtons();
}

void tst_Guide::clickLink(const QString &target) const
{
    QTextCursor link(browser()->document());
    const QList<QTextFragment> fragments = fragmentsOf(*browser()->document());
    for (const QTextFragment &fragment : fragments) {
        if (fragment.charFormat().anchorHref() == target)
            link.setPosition(fragment.position() + 1);
    }
    QVERIFY(!link.atStart());
    browser()->setTextCursor(link);
    browser()->ensureCursorVisible();
    QTest::mouseClick(browser()->viewport(), Qt::LeftButton, {},
                      browser()->cursorRect(link).center());
}

void tst_Guide::isThereOnce()
{
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(browser()->document()->firstBlock().text(), QStringLiteral("User's guide"));
    m_window->showGuide();
    QCOMPARE(m_window->findChildren<GuideDialog *>().size(), 1);
}

void tst_Guide::isNotWaitedFor()
{
    QVERIFY(!m_dialog->isModal());
    QVERIFY(m_window->isEnabled());
}

void tst_Guide::pagesAreWhole_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = QDir(QStringLiteral(":/guide")).entryList({QStringLiteral("*.md")});
    QVERIFY(names.size() >= 4);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

// What is missing would also be a warning.
void tst_Guide::pagesAreWhole()
{
    QFETCH(QString, name);
    browser()->setSource(QUrl(QStringLiteral("qrc:/guide/") + name));
    const QTextDocument *document = browser()->document();
    QVERIFY(document->firstBlock().blockFormat().headingLevel() == 1);
    QVERIFY(!document->toPlainText().contains(QLatin1String("](")));
    int pictures = 0;
    const QList<QTextFragment> fragments = fragmentsOf(*document);
    for (const QTextFragment &fragment : fragments) {
        if (!fragment.charFormat().isImageFormat())
            continue;
        const QUrl url(fragment.charFormat().toImageFormat().name());
        const auto picture =
            browser()->loadResource(QTextDocument::ImageResource, url).value<QImage>();
        QVERIFY2(!picture.isNull(), qPrintable(url.toString()));
        QVERIFY(picture.width() < browser()->viewport()->width() * picture.devicePixelRatioF());
        ++pictures;
    }
    if (name == QLatin1String("users-guide.md"))
        QCOMPARE(pictures, 5);
    // Nothing has to be shifted to be read.
    QCOMPARE(browser()->horizontalScrollBar()->maximum(), 0);
}

void tst_Guide::linksLeadToPagesAndHeadings()
{
    const QUrl first = browser()->source();
    const QStringList links = linksOf(*browser()->document());
    QVERIFY(links.size() > 8);
    for (const QString &link : links) {
        browser()->setSource(first);
        const QUrl target = first.resolved(QUrl(link));
        browser()->setSource(target);
        QVERIFY2(!browser()->document()->isEmpty(), qPrintable(link));
        if (!target.hasFragment())
            continue;
        const QList<QTextFragment> fragments = fragmentsOf(*browser()->document());
        const bool isNamed = std::any_of(
            fragments.cbegin(), fragments.cend(), [&target](const QTextFragment &fragment) {
                return fragment.charFormat().anchorNames().contains(target.fragment());
            });
        QVERIFY2(isNamed, qPrintable(link));
    }
}

void tst_Guide::goesBackAndForth()
{
    auto *back = part<QPushButton>(GuideNames::backButton);
    auto *forward = part<QPushButton>(GuideNames::forwardButton);
    const QString start = browser()->document()->firstBlock().text();
    QVERIFY(!back->isEnabled());
    clickLink(QStringLiteral("#what-the-messages-mean"));
    QVERIFY(browser()->verticalScrollBar()->value() > 1000);
    clickLink(QStringLiteral("uploading.md"));
    QCOMPARE(browser()->document()->firstBlock().text(), QStringLiteral("Uploading"));
    QVERIFY(back->isEnabled() && !forward->isEnabled());
    back->click();
    QCOMPARE(browser()->document()->firstBlock().text(), start);
    QVERIFY(browser()->verticalScrollBar()->value() > 1000);
    forward->click();
    QCOMPARE(browser()->document()->firstBlock().text(), QStringLiteral("Uploading"));
    QVERIFY(!forward->isEnabled());
}

void tst_Guide::findsWhatAMessageSays()
{
    auto *field = part<QLineEdit>(GuideNames::findField);
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("safety copies"));
    const QTextCursor first = browser()->textCursor();
    QCOMPARE(first.selectedText().toLower(), QStringLiteral("safety copies"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(browser()->textCursor().position() > first.position());
    // After the last place comes the first.
    for (int i = 0; i < 50 && browser()->textCursor().position() != first.position(); ++i)
        QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(browser()->textCursor().position(), first.position());
    QCOMPARE(browser()->textCursor().selectedText().toLower(), QStringLiteral("safety copies"));
}

void tst_Guide::findsNothing()
{
    auto *field = part<QLineEdit>(GuideNames::findField);
    field->setFocus();
    const QColor usual = field->palette().color(QPalette::Text);
    QTest::keyClicks(field, QStringLiteral("day"));
    QVERIFY(browser()->textCursor().hasSelection());
    QTest::keyClicks(field, QStringLiteral("(!"));
    QVERIFY(!browser()->textCursor().hasSelection());
    QVERIFY(!field->toolTip().isEmpty());
    QVERIFY(field->palette().color(QPalette::Text) != usual);
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QVERIFY(field->toolTip().isEmpty());
    QCOMPARE(field->palette().color(QPalette::Text), usual);
}

void tst_Guide::isClosedByEscapeAndKeepsItsPlace()
{
    clickLink(QStringLiteral("#shortcuts"));
    const int place = browser()->verticalScrollBar()->value();
    QVERIFY(place > 0);
    QTest::keyClick(browser(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    m_window->showGuide();
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(browser()->verticalScrollBar()->value(), place);
}

QTEST_MAIN(tst_Guide)
#include "tst_guide.moc"
