#include "storage/ChannelFile.h"

#include "ChannelSamples.h"

#include <QtTest>

#include <random>

using namespace Zavo;

/// What a channel file may not hold, and how long it takes to find out.
class tst_ChannelFileStrict : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refuses_data();
    void refuses();
    void limits_data();
    void limits();
    void everyCutIsRefused();
    void damagedBytesNeverGiveHalfAChannel();
    void timeIsLinear_data();
    void timeIsLinear();
};

namespace {
const QByteArray Head = R"(<Channel version="1" id="1" index="2" name="n">)";
const QByteArray Tail = "</Channel>";
const QByteArray Schedule = R"(<Schedule type="default">)";
const QByteArray Band = R"(<Time stage="a" start="01:00:00.000" end="02:00:00.000"/>)";

QByteArray withSchedule(const QByteArray &schedule)
{
    return Head + schedule + Tail;
}

QByteArray withBand(const QByteArray &band)
{
    return withSchedule(Schedule + band + "</Schedule>");
}

QByteArray withTimes(const QByteArray &start, const QByteArray &end)
{
    return withBand("<Time stage=\"a\" start=\"" + start + "\" end=\"" + end + "\"/>");
}

bool parses(const QByteArray &bytes)
{
    ChannelRecord record;
    return ChannelFile::parse(bytes, &record);
}

/// A schedule for each of so many dates.
QByteArray withDates(int count)
{
    QByteArray bytes = Head;
    for (int i = 0; i < count; ++i)
        bytes += R"(<Schedule type="date" date=")" +
                 QDate(1900, 1, 1).addDays(i).toString(Qt::ISODate).toLatin1() + R"("/>)";
    return bytes + Tail;
}

QByteArray nested(int depth)
{
    // The channel is the first level.
    return withSchedule(QByteArray("<a>").repeated(depth - 1) +
                        QByteArray("</a>").repeated(depth - 1));
}

QByteArray withTagOf(int bytes)
{
    const QByteArray begin = R"(<Note text=")";
    const QByteArray end = R"("/>)";
    return withSchedule(begin + QByteArray(bytes - begin.size() - end.size(), 'x') + end);
}
} // namespace

void tst_ChannelFileStrict::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    row("nothing", {});
    row("blanks", "  \n");
    row("text", "channel");
    row("zeros", QByteArray(4096, '\0'));
    row("another root", "<Channels/>");
    row("small root", R"(<channel version="1" id="1" index="2" name="n"/>)");
    row("no version", R"(<Channel id="1" index="2" name="n"/>)");
    row("unknown version", R"(<Channel version="2" id="1" index="2" name="n"/>)");
    row("version with a point", R"(<Channel version="1.0" id="1" index="2" name="n"/>)");
    row("no id", R"(<Channel version="1" index="2" name="n"/>)");
    row("no index", R"(<Channel version="1" id="1" name="n"/>)");
    row("no name", R"(<Channel version="1" id="1" index="2"/>)");
    row("empty id", R"(<Channel version="1" id="" index="2" name="n"/>)");
    row("id with a plus", R"(<Channel version="1" id="+1" index="2" name="n"/>)");
    row("id with a blank", R"(<Channel version="1" id=" 1" index="2" name="n"/>)");
    row("id beyond 32 bits", R"(<Channel version="1" id="2147483648" index="2" name="n"/>)");
    row("id far beyond", R"(<Channel version="1" id="99999999999999999999" index="2" name="n"/>)");
    row("hexadecimal id", R"(<Channel version="1" id="0x1" index="2" name="n"/>)");
    row("Arabic digits", "<Channel version=\"1\" id=\"\xd9\xa1\" index=\"2\" name=\"n\"/>");
    row("broken escape", R"(<Channel version="1" id="1" index="2" name="\"/>)");
    row("unknown escape", R"(<Channel version="1" id="1" index="2" name="\n"/>)");
    row("short escape", R"(<Channel version="1" id="1" index="2" name="\u12"/>)");
    row("no hexadecimal escape", R"(<Channel version="1" id="1" index="2" name="\u12g4"/>)");
    row("declaration of a type", "<!DOCTYPE Channel>" + Head + Tail);
    row("declared entity", "<!DOCTYPE c [<!ENTITY e \"x\">]>" + Head + "&e;" + Tail);
    row("second root", Head + Tail + Head + Tail);
    row("text behind the root", Head + Tail + "x");
    row("stray text", withSchedule("stray"));
    row("stray text in a schedule", withBand("stray"));
    row("another encoding", "<?xml version=\"1.0\" encoding=\"latin1\"?>" + Head + Tail);
    row("UTF-16", QByteArray("\xff\xfe<\0C\0", 6));
    row("bytes that are no UTF-8", withSchedule("<!-- \xc3( -->"));
    row("schedule without type", withSchedule("<Schedule/>"));
    row("schedule of no known type", withSchedule(R"(<Schedule type="month"/>)"));
    row("schedule of type 0", withSchedule(R"(<Schedule type=""/>)"));
    row("day without day", withSchedule(R"(<Schedule type="day"/>)"));
    row("day 0", withSchedule(R"(<Schedule type="day" day="0"/>)"));
    row("day 8", withSchedule(R"(<Schedule type="day" day="8"/>)"));
    row("day by name", withSchedule(R"(<Schedule type="day" day="Monday"/>)"));
    row("date without date", withSchedule(R"(<Schedule type="date"/>)"));
    for (const char *date :
         {"2027-02-29", "2027-13-01", "2027-00-01", "2027-01-00", "2027-1-1", "2027/01/01",
          "27-01-01", "0000-01-01", "-001-01-01", "2027-01-01 ", "01.01.2027", "12027-01-01"})
        QTest::newRow(date) << withSchedule(QByteArray(R"(<Schedule type="date" date=")") + date +
                                            R"("/>)");
    row("the default schedule twice",
        withSchedule(Schedule + "</Schedule>" + Schedule + "</Schedule>"));
    row("a day twice", withSchedule(R"(<Schedule type="day" day="3"/><Schedule type="default"/>
                                       <Schedule type="day" day="3"/>)"));
    row("a date twice", withSchedule(R"(<Schedule type="date" date="2027-01-01"/>
        <Schedule type="date" date="2026-01-01"/><Schedule type="date" date="2027-01-01"/>)"));
    row("band without stage", withBand(R"(<Time start="01:00:00.000" end="02:00:00.000"/>)"));
    row("band without start", withBand(R"(<Time stage="a" end="02:00:00.000"/>)"));
    row("band without end", withBand(R"(<Time stage="a" start="02:00:00.000"/>)"));
    row("band that ends before it starts", withTimes("02:00:00.000", "01:59:59.999"));
    for (const char *time : {"24:00:00.000", "23:60:00.000", "23:00:60.000", "23:00:00",
                             "1:00:00.000", "01:00:00,000", "01-00:00.000", "01:00:00.0000",
                             "01:00:00.00x", " 1:00:00.000", "-1:00:00.000", "", "midnight"}) {
        QTest::newRow(qPrintable(QStringLiteral("start ") + QLatin1String(time)))
            << withTimes(time, "23:59:59.999");
        QTest::newRow(qPrintable(QStringLiteral("end ") + QLatin1String(time)))
            << withTimes("00:00:00.000", time);
    }
}

void tst_ChannelFileStrict::refuses()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(parses(withBand(Band))); // so it is not for another reason
    ChannelRecord record;
    record.id = 77;
    QVERIFY(!ChannelFile::parse(bytes, &record));
    QCOMPARE(record.id, 77);
    QVERIFY(record.schedules.isEmpty());
}

void tst_ChannelFileStrict::limits_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("ok");
    QTest::newRow("16 levels") << nested(16) << true;
    QTest::newRow("17 levels") << nested(17) << false;
    QTest::newRow("tag of 64 KiB") << withTagOf(64 * 1024) << true;
    QTest::newRow("tag of a byte more") << withTagOf(64 * 1024 + 1) << false;
    QTest::newRow("50,000 schedules") << withDates(50000) << true;
    QTest::newRow("50,001 schedules") << withDates(50001) << false;
    QTest::newRow("20,000 bands") << withBand(Band.repeated(20000)) << true;
    QTest::newRow("20,001 bands") << withBand(Band.repeated(20001)) << false;
    const QByteArray frame = withSchedule("<!---->");
    const int room = 64 * 1024 * 1024 - frame.size();
    QTest::newRow("64 MiB") << withSchedule("<!--" + QByteArray(room, 'x') + "-->") << true;
    QTest::newRow("a byte more") << withSchedule("<!--" + QByteArray(room + 1, 'x') + "-->")
                                 << false;
}

void tst_ChannelFileStrict::limits()
{
    QFETCH(QByteArray, bytes);
    QTEST(parses(bytes), "ok");
}

void tst_ChannelFileStrict::everyCutIsRefused()
{
    QByteArray bytes;
    const ZvChannel channel = ChannelSamples::channelOfDates({}, 3, 4);
    QVERIFY(ChannelFile::serialize({1, 2, QStringLiteral("n\u00e4me\n"), channel.scheduleList()},
                                   &bytes));
    for (int length = 0; length < bytes.size() - 1; ++length)
        QVERIFY2(!parses(bytes.left(length)), qPrintable(QString::number(length)));
    QVERIFY(parses(bytes.left(bytes.size() - 1))); // the line end behind the root
}

void tst_ChannelFileStrict::damagedBytesNeverGiveHalfAChannel()
{
    QByteArray bytes;
    ZvChannel channel = ChannelSamples::channelOfDates({}, 4, 5);
    QVERIFY(ChannelFile::serialize(
        {1, 2, QStringLiteral("n\\\u00e4\U0001F600"), channel.scheduleList()}, &bytes));
    std::mt19937 random(2027);
    for (int round = 0; round < 6000; ++round) {
        QByteArray damaged = bytes;
        for (unsigned i = 0; i < 1 + random() % 3; ++i) {
            const int at = int(random() % unsigned(damaged.size()));
            const int length = int(random() % 20);
            switch (random() % 4) {
            case 0:
                damaged[at] = char(random());
                break;
            case 1:
                damaged.remove(at, length);
                break;
            case 2:
                damaged.insert(at, damaged.mid(int(random() % unsigned(damaged.size())), length));
                break;
            default:
                damaged[at] = "<>&\"'/=\\;#! -"[random() % 13];
            }
        }
        ChannelRecord record;
        if (!ChannelFile::parse(damaged, &record))
            continue;
        // What was taken is a channel in every respect: it can be saved and comes back.
        QByteArray again;
        QVERIFY2(ChannelFile::serialize(record, &again), damaged.constData());
        QVERIFY(parses(again));
    }
}

void tst_ChannelFileStrict::timeIsLinear_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QByteArray>("begin");
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("references") << QByteArray("&amp;") << QByteArray("<a>") << QByteArray("</a>");
    QTest::newRow("open references") << QByteArray("&") << QByteArray("<a>") << QByteArray("</a>");
    QTest::newRow("long reference")
        << QByteArray("0") << QByteArray("<a>&#") << QByteArray(";</a>");
    QTest::newRow("brackets") << QByteArray("]]") << QByteArray("<a>") << QByteArray("</a>");
    QTest::newRow("comments") << QByteArray("<!--a-->") << QByteArray() << QByteArray();
    QTest::newRow("open comments") << QByteArray("<!-") << QByteArray("<!--") << QByteArray("-->");
    QTest::newRow("instructions") << QByteArray("<?a ?>") << QByteArray() << QByteArray();
    QTest::newRow("sections") << QByteArray("<![CDATA[a]]>") << QByteArray("<a>")
                              << QByteArray("</a>");
    QTest::newRow("elements") << QByteArray("<a b='c'/>") << QByteArray() << QByteArray();
    QTest::newRow("long name") << QByteArray("a") << QByteArray("<a>&") << QByteArray(";</a>");
    // One tag of many attributes after the other.
    QByteArray attributes = "<a";
    for (int i = 0; i < 6000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    QTest::newRow("attributes") << QByteArray(attributes + "/>") << QByteArray() << QByteArray();
}

void tst_ChannelFileStrict::timeIsLinear()
{
    QFETCH(QByteArray, part);
    QFETCH(QByteArray, begin);
    QFETCH(QByteArray, end);
    constexpr int Bytes = 2 * 1024 * 1024;
    const QByteArray bytes = withSchedule(begin + part.repeated(Bytes / part.size()) + end);
    QElapsedTimer timer;
    timer.start();
    parses(bytes);
    // Linear is a second at most, also unoptimised and under sanitizers; quadratic is an hour.
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_APPLESS_MAIN(tst_ChannelFileStrict)
#include "tst_channelfilestrict.moc"
