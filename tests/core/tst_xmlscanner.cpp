#include "storage/XmlScanner.h"
#include "storage/XmlText.h"

#include <QXmlStreamReader>
#include <QtTest>

#include <random>

using Zavo::XmlScanner;

class tst_XmlScanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wellFormed_data();
    void wellFormed();
    void values_data();
    void values();
    void text_data();
    void text();
    void namesOfElements();
    void childrenAreTakenOneByOne();
    void nothingIsReadAfterAFailure();
    void agreesWithAnotherReader();
    void validUtf8_data();
    void validUtf8();
    void validUtf8AtEveryPlace();
};

namespace {
std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<size_t>(bytes.size())};
}

bool isWellFormed(const QByteArray &bytes)
{
    XmlScanner xml(view(bytes));
    return xml.readRoot() && xml.skipElement() && xml.readEnd();
}
} // namespace

void tst_XmlScanner::wellFormed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("ok");
    const auto row = [](const QByteArray &bytes, bool ok) {
        QTest::newRow(bytes.left(60).constData()) << bytes << ok;
    };
    for (const char *good : {"<a/>",
                             "<a></a>",
                             "<a ></a >",
                             "<a b='1' c=\"2\"/>",
                             "<a b = '1'/>",
                             "<a b='\"' c=\"'\"/>",
                             "<a b='>'/>",
                             "<a>></a>",
                             "<a>]]</a>",
                             "<a>]>]</a>",
                             "<a><![CDATA[]]]]></a>",
                             "<!--x--><a/>",
                             "<a/><!-- - -->",
                             "<!----><a/>",
                             "<?p?><a/>",
                             "<?p ?\?><a/>",
                             "<?xmlx a?><a/>",
                             "\n\t <a/>\r\n",
                             "<?xml version='1.0'?><a/>",
                             "<?xml version=\"1.0\" encoding='UTF-8' standalone='no'?><a/>",
                             "<a.b-c_d:e1/>",
                             "<\xc3\xa4/>",
                             "<a>&lt;&gt;&amp;&quot;&apos;</a>",
                             "<a b='&#9;&#xA;'/>",
                             "<a>&#x10FFFF;&#1114111;&#000065;</a>",
                             "<a>\xf0\x9f\x98\x80</a>",
                             "\xef\xbb\xbf<a/>"})
        row(good, true);
    for (const char *bad : {"",
                            " ",
                            "a",
                            "<",
                            "<a",
                            "<a>",
                            "<a/",
                            "</a>",
                            "<a></b>",
                            "<a></a",
                            "<a/ >",
                            "< a/>",
                            "<a/>x",
                            "x<a/>",
                            "<a/><a/>",
                            "<a b/>",
                            "<a b=1/>",
                            "<a b='1'c='2'/>",
                            "<a b='1' b='2'/>",
                            "<a b='<'/>",
                            "<a b='1/>",
                            "<a 'b'/>",
                            "<a ='b'/>",
                            "<1/>",
                            "<-a/>",
                            "<.a/>",
                            "<a>]]></a>",
                            "<a>&</a>",
                            "<a>&;</a>",
                            "<a>&x;</a>",
                            "<a>&lt</a>",
                            "<a>& lt;</a>",
                            "<a>&#;</a>",
                            "<a>&#x;</a>",
                            "<a>&#0;</a>",
                            "<a>&#8;</a>",
                            "<a>&#xD800;</a>",
                            "<a>&#xFFFE;</a>",
                            "<a>&#x110000;</a>",
                            "<a>&#99999999999999;</a>",
                            "<a>&#6 5;</a>",
                            "<a>&#x6G;</a>",
                            "<a>&#-65;</a>",
                            "<a b='&x;'/>",
                            "<a b='&'/>",
                            "<!--<a/>",
                            "<!-- -- --><a/>",
                            "<!--->-->",
                            "<!---><a/>",
                            "<!-a--><a/>",
                            "<a><![CDATA[</a>",
                            "<a><![cdata[]]></a>",
                            "<![CDATA[]]><a/>",
                            "<a/><![CDATA[]]>",
                            "<!DOCTYPE a><a/>",
                            "<!DOCTYPE a []><a/>",
                            "<!ELEMENT a><a/>",
                            "<?p<a/>",
                            "<?\?><a/>",
                            "<? p?><a/>",
                            "<?p",
                            "<?xml version='1.0'?>",
                            "<?xml version='1.1'?><a/>",
                            "<?xml?><a/>",
                            "<?xml encoding='UTF-8'?><a/>",
                            "<?xml version='1.0' encoding='UTF-16'?><a/>",
                            "<?xml version='1.0' standalone='maybe'?><a/>",
                            "<?xml version='1.0' x='1'?><a/>",
                            "<?xml encoding='UTF-8' version='1.0'?><a/>",
                            "<?xml version='1.0' version='1.0'?><a/>",
                            "<?xml version='1.0'><a/>",
                            " <?xml version='1.0'?><a/>",
                            "<a/><?xml version='1.0'?>",
                            "<?XML version='1.0'?><a/>",
                            "<a>\x01</a>",
                            "<a>\xff</a>",
                            "<a>\xef\xbf\xbe</a>",
                            "<a>\xed\xa0\x80</a>",
                            "\xff\xfe<a/>",
                            "<a/>&#32;"})
        row(bad, false);
    row(QByteArray("<a>\0</a>", 8), false);
    row(QByteArray("<a/>\0", 5), false);
}

void tst_XmlScanner::wellFormed()
{
    QFETCH(QByteArray, bytes);
    QTEST(isWellFormed(bytes), "ok");
}

void tst_XmlScanner::values_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QString>("value");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("plain") << QByteArray("a b") << QStringLiteral("a b");
    QTest::newRow("blanks") << QByteArray("\ta\n b\r\nc\r") << QStringLiteral(" a  b c ");
    QTest::newRow("references") << QByteArray("&lt;&#9;&#10;&#13;&#x1F600;&amp;lt;")
                                << QStringLiteral("<\t\n\r\U0001F600&lt;");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80")
                           << QStringLiteral("\u00e4\u20ac\U0001F600");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf.") << QStringLiteral("\ufeff.");
}

void tst_XmlScanner::values()
{
    QFETCH(QByteArray, raw);
    const QByteArray bytes = "<a x='1' b=\"" + raw + "\"/>";
    XmlScanner xml(view(bytes));
    QVERIFY(xml.readRoot());
    QVERIFY(xml.rawAttribute("b") == view(raw));
    QTEST(*xml.attribute("b"), "value");
    QVERIFY(!xml.attribute("c"));
}

void tst_XmlScanner::text_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QString>("string");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("blanks stay") << QByteArray(" a\t\n ") << QStringLiteral(" a\t\n ");
    QTest::newRow("line ends") << QByteArray("a\r\nb\rc\nd&#13;") << QStringLiteral("a\nb\nc\nd\r");
    QTest::newRow("section") << QByteArray("a<![CDATA[<b>&amp;\r\n]]>c")
                             << QStringLiteral("a<b>&amp;\nc");
    QTest::newRow("elements in between")
        << QByteArray("a<b>no<c/></b>b<!-- no -->c<?no?>") << QStringLiteral("abc");
}

void tst_XmlScanner::text()
{
    QFETCH(QByteArray, raw);
    const QByteArray bytes = "<a>" + raw + "</a>";
    XmlScanner xml(view(bytes));
    QVERIFY(xml.readRoot());
    QString string(QStringLiteral("before"));
    QVERIFY(xml.readText(&string));
    QTEST(string, "string");
    QVERIFY(xml.readEnd());
}

void tst_XmlScanner::namesOfElements()
{
    const QByteArray bytes("<a><b c='1'><d/></b></a>");
    XmlScanner xml(view(bytes));
    QVERIFY(xml.readRoot());
    QVERIFY(xml.name() == "a");
    QVERIFY(xml.readNextChild());
    QVERIFY(xml.name() == "b");
    QVERIFY(xml.rawAttribute("c") == "1");
    QVERIFY(xml.readNextChild());
    QVERIFY(xml.name() == "d");
    QVERIFY(!xml.rawAttribute("c"));
}

void tst_XmlScanner::childrenAreTakenOneByOne()
{
    const QByteArray bytes("<a> <b><x/><x/></b> <!-- --> <c>t<x/></c> <d/> </a>");
    XmlScanner xml(view(bytes));
    QVERIFY(xml.readRoot());
    QByteArray names;
    while (xml.readNextChild()) {
        names += QByteArray(xml.name().data(), int(xml.name().size()));
        QVERIFY(xml.skipElement());
    }
    QCOMPARE(names, QByteArray("bcd"));
    QVERIFY(xml.readEnd());
}

void tst_XmlScanner::nothingIsReadAfterAFailure()
{
    const QByteArray bytes("<a><b>&x;</b><c/></a>");
    XmlScanner xml(view(bytes));
    QVERIFY(xml.readRoot());
    QVERIFY(xml.readNextChild());
    QVERIFY(!xml.skipElement());
    QVERIFY(!xml.readNextChild());
    QVERIFY(!xml.readEnd());
    QString string;
    QVERIFY(!xml.readText(&string));
}

void tst_XmlScanner::agreesWithAnotherReader()
{
    // Well-formed pieces, put together and damaged at random. What only one of the two takes must
    // be a matter of names beyond ASCII, of prefixes or of declarations, which the pieces leave
    // out.
    const QByteArrayList pieces{"<a>",
                                "</a>",
                                "<b c='d'>",
                                "</b>",
                                "<e/>",
                                " ",
                                "text",
                                "&amp;",
                                "&#65;",
                                "<!-- c -->",
                                "<?p i?>",
                                "<![CDATA[x]]>",
                                "<f g=\"h\" i='j'/>",
                                "&",
                                ";",
                                "<",
                                ">",
                                "'",
                                "\"",
                                "=",
                                "-",
                                "]",
                                "!",
                                "?",
                                "/",
                                "x",
                                "\n"};
    std::mt19937 random(42);
    int taken = 0;
    for (int round = 0; round < 20000; ++round) {
        QByteArray inner;
        const unsigned last = round % 2 == 0 ? 13 : unsigned(pieces.size());
        for (unsigned i = 0; i < random() % 8; ++i)
            inner += pieces.at(int(random() % last));
        const QByteArray bytes = "<r>" + inner + "</r>";
        QXmlStreamReader other(bytes);
        while (!other.atEnd())
            other.readNext();
        const bool ours = isWellFormed(bytes);
        QVERIFY2(ours == !other.hasError(), bytes.constData());
        taken += ours ? 1 : 0;
    }
    QVERIFY(taken > 2000);
}

void tst_XmlScanner::validUtf8_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("ok");
    const auto row = [](const char *name, const char *bytes, bool ok) {
        QTest::newRow(name) << QByteArray(bytes) << ok;
    };
    row("two bytes", "\xc2\x80", true);
    row("three bytes", "\xe0\xa0\x80", true);
    row("last of three", "\xef\xbf\xbd", true);
    row("four bytes", "\xf0\x90\x80\x80", true);
    row("last", "\xf4\x8f\xbf\xbf", true);
    row("beyond the last", "\xf4\x90\x80\x80", false);
    row("five bytes", "\xf8\x88\x80\x80\x80", false);
    row("too long a form of two", "\xc1\xbf", false);
    row("too long a form of three", "\xe0\x9f\xbf", false);
    row("too long a form of four", "\xf0\x8f\xbf\xbf", false);
    row("surrogate", "\xed\xbf\xbf", false);
    row("alone in the middle", "\x80", false);
    row("cut off", "\xe2\x82", false);
    row("broken", "\xe2\x28\xa1", false);
    row("no character", "\xef\xbf\xbf", false);
    row("control", "\x1f", false);
    row("delete", "\x7f", true);
}

void tst_XmlScanner::validUtf8()
{
    QFETCH(QByteArray, bytes);
    QTEST(Zavo::XmlText::isValid(view(bytes)), "ok");
}

void tst_XmlScanner::validUtf8AtEveryPlace()
{
    // The quick way takes eight bytes at once.
    for (int length = 1; length < 40; ++length) {
        for (int at = 0; at < length; ++at) {
            QByteArray bytes(length, 'x');
            QVERIFY(Zavo::XmlText::isValid(view(bytes)));
            for (const char bad : {'\x00', '\x1f', '\x80', '\xff'}) {
                bytes[at] = bad;
                QVERIFY(!Zavo::XmlText::isValid(view(bytes)));
            }
            for (const char good : {'\n', '\t', ' ', '~', '\x7f'}) {
                bytes[at] = good;
                QVERIFY(Zavo::XmlText::isValid(view(bytes)));
            }
        }
    }
}

QTEST_APPLESS_MAIN(tst_XmlScanner)
#include "tst_xmlscanner.moc"
