#include "Command.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSettings>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

/// What goes along with the program and its libraries: how a desktop knows the program, its manual
/// page, and the documentation of the headers.
class tst_Metadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void desktopFileIsValid();
    void metainfoIsValid();
    void desktopFileAndMetainfoAgree();
    void desktopFileSpeaksEveryLanguage_data();
    void desktopFileSpeaksEveryLanguage();
    void metainfoTellsTheVersion();
    void manualPageIsWellFormed();
    void manualPageTellsEveryOption();
    void manualPageTellsEveryVariable_data();
    void manualPageTellsEveryVariable();
    void iconsAreWhatIsDrawn_data();
    void iconsAreWhatIsDrawn();
    void headersAreDocumented();
};

namespace {

const QString desktopFile =
    QStringLiteral(ZAVO_SOURCE_DIR "/packaging/zavo-schedule-editor.desktop");
const QString metainfoFile =
    QStringLiteral(ZAVO_BINARY_DIR "/packaging/org.example.zavo_schedule_editor.metainfo.xml");
const QString manualPage = QStringLiteral(ZAVO_BINARY_DIR "/packaging/zavo-schedule-editor.1");
const QString iconFolder = QStringLiteral(ZAVO_SOURCE_DIR "/resources/icons");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The texts of a key in all languages, as "de=...".
QStringList desktopTexts(const QByteArray &key)
{
    QStringList texts;
    for (const QByteArray &line : contentOf(desktopFile).split('\n')) {
        const QByteArray name = line.left(line.indexOf('='));
        const QByteArray text = line.mid(name.size() + 1);
        if (name == key)
            texts.append(QStringLiteral("=") + QString::fromUtf8(text));
        else if (name.startsWith(key + '['))
            texts.append(QString::fromUtf8(name.mid(key.size() + 1, 2) + '=' + text));
    }
    texts.sort();
    return texts;
}

QStringList metainfoTexts(const QString &element)
{
    QStringList texts;
    QXmlStreamReader reader(contentOf(metainfoFile));
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != element)
            continue;
        const QString language = reader.attributes().value(QStringLiteral("xml:lang")).toString();
        texts.append(language + QLatin1Char('=') + reader.readElementText());
    }
    texts.sort();
    return texts;
}

/// The long options that a text tells of.
QSet<QString> longOptions(const QString &text)
{
    static const QRegularExpression expression(QStringLiteral("--[a-z][a-z-]+"));
    QSet<QString> options;
    auto matches = expression.globalMatch(text);
    while (matches.hasNext())
        options.insert(matches.next().captured());
    return options;
}

/// Largest mean difference of two pictures in a channel of a pixel.
constexpr double sameDrawing = 2.0;

double meanDifference(const QImage &a, const QImage &b)
{
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar *lineA = a.constScanLine(y);
        const uchar *lineB = b.constScanLine(y);
        for (int byte = 0; byte < 4 * a.width(); ++byte)
            sum += qAbs(lineA[byte] - lineB[byte]);
    }
    return double(sum) / (4.0 * a.width() * a.height());
}

} // namespace

void tst_Metadata::desktopFileIsValid()
{
    const Command valid = Command::run(QStringLiteral("desktop-file-validate"), {desktopFile});
    QCOMPARE(valid.output, QByteArray());
    QCOMPARE(valid.exitCode, 0);
}

void tst_Metadata::metainfoIsValid()
{
    const Command valid =
        Command::run(QStringLiteral("appstreamcli"),
                     {QStringLiteral("validate"), QStringLiteral("--no-net"),
                      QStringLiteral("--pedantic"), QStringLiteral("--strict"), metainfoFile});
    QVERIFY2(valid.exitCode == 0, valid.output.constData());
}

void tst_Metadata::desktopFileAndMetainfoAgree()
{
    QCOMPARE(metainfoTexts(QStringLiteral("name")), desktopTexts("Name"));
    QCOMPARE(metainfoTexts(QStringLiteral("summary")), desktopTexts("Comment"));
    QCOMPARE(metainfoTexts(QStringLiteral("launchable")),
             QStringList{QStringLiteral("=") + QFileInfo(desktopFile).fileName()});
    QCOMPARE(metainfoTexts(QStringLiteral("icon")), desktopTexts("Icon"));
    QCOMPARE(metainfoTexts(QStringLiteral("binary")), desktopTexts("Exec"));
}

void tst_Metadata::desktopFileSpeaksEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    const QDir catalogues(QStringLiteral(ZAVO_SOURCE_DIR "/translations"));
    for (const QString &name : catalogues.entryList({QStringLiteral("*.ts")})) {
        const QString language = QFileInfo(name).baseName().section(QLatin1Char('_'), -1);
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_Metadata::desktopFileSpeaksEveryLanguage()
{
    QFETCH(QString, language);
    QVERIFY(metainfoTexts(QStringLiteral("lang")).contains(QLatin1Char('=') + language));
    const QString prefix =
        (language == QLatin1String("en") ? QString() : language) + QLatin1Char('=');
    for (const auto *key : {"GenericName", "Comment", "Keywords"})
        QVERIFY2(desktopTexts(key).filter(QRegularExpression(QLatin1Char('^') + prefix)).size() ==
                     1,
                 key);
}

void tst_Metadata::metainfoTellsTheVersion()
{
    QVERIFY(contentOf(metainfoFile).contains("<release version=\"" ZAVO_VERSION "\""));
}

void tst_Metadata::manualPageIsWellFormed()
{
    const Command linted =
        Command::run(QStringLiteral("mandoc"),
                     {QStringLiteral("-Tlint"), QStringLiteral("-Wstyle"), manualPage});
    QCOMPARE(linted.output, QByteArray());
    QCOMPARE(linted.exitCode, 0);
}

void tst_Metadata::manualPageTellsEveryOption()
{
    const Command help = Command::run(QStringLiteral(ZAVO_PROGRAM), {QStringLiteral("--help")});
    QCOMPARE(help.exitCode, 0);
    const QString page = QString::fromUtf8(contentOf(manualPage)).remove(QLatin1Char('\\'));
    QVERIFY(longOptions(page).contains(QStringLiteral("--check")));
    QCOMPARE(longOptions(page), longOptions(QString::fromUtf8(help.output)));
}

void tst_Metadata::manualPageTellsEveryVariable_data()
{
    QTest::addColumn<QByteArray>("variable");
    for (const auto *variable :
         {"ZAVO_DATA_DIR", "ZAVO_DPI_RATIO", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "LANG"})
        QTest::newRow(variable) << QByteArray(variable);
}

void tst_Metadata::manualPageTellsEveryVariable()
{
    QFETCH(QByteArray, variable);
    QVERIFY(contentOf(manualPage).contains(variable));
}

void tst_Metadata::iconsAreWhatIsDrawn_data()
{
    QTest::addColumn<int>("size");
    for (const QString &folder :
         QDir(iconFolder + QStringLiteral("/hicolor")).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QTest::newRow(qPrintable(folder)) << folder.section(QLatin1Char('x'), 0, 0).toInt();
}

void tst_Metadata::iconsAreWhatIsDrawn()
{
    QFETCH(int, size);
    const QImage icon(
        QStringLiteral("%1/hicolor/%2x%2/apps/zavo-schedule-editor.png").arg(iconFolder).arg(size));
    QCOMPARE(icon.size(), QSize(size, size));

    QString drawing = QStringLiteral("%1/zavo-schedule-editor-%2.svg").arg(iconFolder).arg(size);
    if (!QFile::exists(drawing))
        drawing = iconFolder + QStringLiteral("/zavo-schedule-editor.svg");
    QSvgRenderer renderer(drawing);
    QVERIFY(renderer.isValid());
    QImage drawn(size, size, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    renderer.render(&painter);
    painter.end();
    QVERIFY(meanDifference(icon.convertToFormat(drawn.format()), drawn) < sameDrawing);
}

void tst_Metadata::headersAreDocumented()
{
    if (!ZAVO_HAS_DOCUMENTATION)
        QSKIP("This build has no documentation of the headers");
    const QString folder = QStringLiteral(ZAVO_BINARY_DIR "/documentation");
    QCOMPARE(contentOf(folder + QStringLiteral("/warnings.log")), QByteArray());
    const QDir pages(folder + QStringLiteral("/html"));
    for (const auto *page :
         {"index.html", "classZavo_1_1ZvScheduleEditor.html", "classZavo_1_1ZvChannel.html",
          "classZavo_1_1ZvEditorConfig.html", "structZavo_1_1ZvStageItem.html"})
        QVERIFY2(pages.exists(QLatin1String(page)), page);
}

QTEST_GUILESS_MAIN(tst_Metadata)
#include "tst_metadata.moc"
