#include "timetable/TimeTableText.h"

#include "timetable/TimeTableFont.h"
#include "timetable/TimeTableTextItem.h"

#include <QSet>
#include <QtTest>

#include <memory>
#include <vector>

using namespace Zavo;

namespace {
constexpr int pixelSize = 12;
const QString stage = QStringLiteral("lobby/welcome.xml");
} // namespace

class tst_TimeTableText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laysOutATextOnce();
    void looksLikeATextOfItsOwn_data();
    void looksLikeATextOfItsOwn();
    void leavesTheOthersTheirTextWhenOneChanges();
    void outlivesTheLabelThatCameFirst();
    void sharesATextAmongFewEnoughToPartQuickly();
    void dropsTextsThatNobodyBears();
    void keepsTextsThatSomebodyBears();
};

void tst_TimeTableText::laysOutATextOnce()
{
    const auto text = TimeTableTexts::find(stage, pixelSize);
    QCOMPARE(TimeTableTexts::find(stage, pixelSize), text);
    QVERIFY(TimeTableTexts::find(stage, pixelSize + 1) != text);
    QVERIFY(TimeTableTexts::find(stage + stage, pixelSize) != text);
}

void tst_TimeTableText::looksLikeATextOfItsOwn_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("number") << QStringLiteral("#4319");
    QTest::newRow("stage") << stage;
    QTest::newRow("scripts") << QString::fromUtf8("駅/出発 – Abfahrt مغادرة.xml");
    QTest::newRow("lines") << QStringLiteral("first\nsecond");
    QTest::newRow("markup") << QStringLiteral("<b>&amp;</b>");
}

void tst_TimeTableText::looksLikeATextOfItsOwn()
{
    QFETCH(QString, text);
    QGraphicsTextItem plain;
    plain.setFont(TimeTableFont::font(pixelSize));
    plain.setPlainText(text);
    TimeTableTextItem other(text);
    TimeTableTextItem item(QStringLiteral("before"));
    item.setLabel(text);
    QCOMPARE(item.label(), text);
    QCOMPARE(item.toPlainText(), plain.toPlainText());
    QCOMPARE(item.boundingRect(), plain.boundingRect());
    QCOMPARE(item.font(), plain.font());
    QCOMPARE(item.document(), other.document());
}

void tst_TimeTableText::leavesTheOthersTheirTextWhenOneChanges()
{
    TimeTableTextItem first(stage);
    TimeTableTextItem second(stage);
    const QRectF bounds = second.boundingRect();
    first.setLabel(QStringLiteral("a.xml"));
    QCOMPARE(second.toPlainText(), stage);
    first.setLabel(stage);
    first.setDpiRatio(2.0);
    QCOMPARE(first.font().pixelSize(), 2 * pixelSize);
    QCOMPARE(second.font().pixelSize(), pixelSize);
    QCOMPARE(second.boundingRect(), bounds);
    QVERIFY(first.boundingRect().width() > bounds.width());
}

void tst_TimeTableText::outlivesTheLabelThatCameFirst()
{
    auto first = std::make_unique<TimeTableTextItem>(stage);
    const TimeTableTextItem second(stage);
    first.reset();
    QCOMPARE(second.toPlainText(), stage);
    QVERIFY(second.document()->size().width() > 0.0);
}

void tst_TimeTableText::sharesATextAmongFewEnoughToPartQuickly()
{
    constexpr int count = 1000;
    std::vector<std::unique_ptr<TimeTableTextItem>> labels;
    QHash<const QTextDocument *, int> sharers;
    for (int i = 0; i < count; ++i) {
        labels.push_back(std::make_unique<TimeTableTextItem>(stage));
        ++sharers[labels.back()->document()];
    }
    QVERIFY(sharers.size() > 1);
    QVERIFY(sharers.size() < count / 10);
    for (int number : qAsConst(sharers))
        QVERIFY2(number <= 100, qPrintable(QString::number(number)));
    for (std::size_t i = 0; i < labels.size(); i += 2)
        labels.at(i).reset();
    for (std::size_t i = 1; i < labels.size(); i += 2)
        QCOMPARE(labels.at(i)->toPlainText(), stage);
}

void tst_TimeTableText::dropsTextsThatNobodyBears()
{
    const std::weak_ptr<TimeTableText> unused =
        TimeTableTexts::find(QStringLiteral("unused"), pixelSize);
    QVERIFY(!unused.expired());
    for (int i = 0; i < 20000; ++i)
        TimeTableTexts::find(QStringLiteral("unused %1").arg(i), pixelSize);
    QVERIFY(unused.expired());
}

void tst_TimeTableText::keepsTextsThatSomebodyBears()
{
    const TimeTableTextItem label(QStringLiteral("borne"));
    for (int i = 0; i < 20000; ++i)
        TimeTableTexts::find(QStringLiteral("another %1").arg(i), pixelSize);
    QCOMPARE(label.toPlainText(), QStringLiteral("borne"));
    QCOMPARE(TimeTableTextItem(QStringLiteral("borne")).document(), label.document());
}

QTEST_MAIN(tst_TimeTableText)
#include "tst_timetabletext.moc"
