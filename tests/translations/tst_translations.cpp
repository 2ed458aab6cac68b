#include "CatalogueSource.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

/// Holds the catalogues to the texts of the sources.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasEveryText_data();
    void hasEveryText();
    void keepsPlaces_data() { addLanguages(); }
    void keepsPlaces();
    void keepsLinesAndMarks_data() { addLanguages(); }
    void keepsLinesAndMarks();
    void keepsMnemonics_data() { addLanguages(); }
    void keepsMnemonics();
    void leavesNamesInFilesAlone_data() { addLanguages(); }
    void leavesNamesInFilesAlone();
    void saysOneThingInOneWay_data() { addLanguages(); }
    void saysOneThingInOneWay();

private:
    static void addLanguages();
    static QString filePath(const QString &language);
    static QList<CatalogueEntry> entries();
};

namespace {

QStringList allMatches(const QString &expression, const QString &text)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(expression).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

int mnemonics(const QString &text)
{
    return allMatches(QStringLiteral("&(?!&)."), QString(text).remove(QStringLiteral("&&"))).size();
}

} // namespace

void tst_Translations::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const auto *language : {"de", "fr", "ja", "en"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

QString tst_Translations::filePath(const QString &language)
{
    return QStringLiteral(ZAVO_SOURCE_DIR "/translations/zavo-schedule-editor_%1.ts").arg(language);
}

QList<CatalogueEntry> tst_Translations::entries()
{
    QFETCH(QString, language);
    return CatalogueSource(filePath(language)).entries();
}

void tst_Translations::hasEveryText_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("forms");
    const QStringList plurals{QStringLiteral("-pluralonly")};
    QTest::newRow("de") << "de" << QStringList() << 2;
    QTest::newRow("fr") << "fr" << QStringList() << 2;
    QTest::newRow("ja") << "ja" << QStringList() << 1;
    QTest::newRow("en") << "en" << plurals << 2;
}

void tst_Translations::hasEveryText()
{
    QFETCH(QString, language);
    QFETCH(QStringList, options);
    QFETCH(int, forms);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy_%1.ts").arg(language));
    QVERIFY(QFile::copy(filePath(language), copy));
    QProcess update;
    update.start(QStringLiteral(ZAVO_LUPDATE),
                 options + QStringList{QStringLiteral("-silent"), QStringLiteral("-locations"),
                                       QStringLiteral("none"),
                                       QStringLiteral(ZAVO_SOURCE_DIR "/src"),
                                       QStringLiteral("-ts"), copy});
    QVERIFY(update.waitForFinished(60000));
    QCOMPARE(update.exitCode(), 0);
    // What lupdate tells would be of a text that it does not understand.
    QCOMPARE(QString::fromUtf8(update.readAllStandardError()), QString());
    const QList<CatalogueEntry> found = CatalogueSource(copy).entries();
    QVERIFY(found.size() > (options.isEmpty() ? 400 : 5));
    QByteArray problems;
    for (const CatalogueEntry &entry : found) {
        const bool isWhole = entry.translations.size() == (entry.isPlural ? forms : 1) &&
                             !entry.translations.contains(QString());
        if (!entry.state.isEmpty() || !isWhole)
            problems += entry.name() + '\n';
    }
    QVERIFY2(problems.isEmpty(), problems.constData());
}

void tst_Translations::keepsPlaces()
{
    const QList<CatalogueEntry> found = entries();
    QVERIFY(!found.isEmpty());
    for (const CatalogueEntry &entry : found) {
        const QString place = QStringLiteral("%L?(\\d+|n)");
        for (const QString &translation : entry.translations) {
            QVERIFY2(allMatches(place, translation) == allMatches(place, entry.text),
                     entry.name().constData());
        }
    }
}

void tst_Translations::keepsLinesAndMarks()
{
    QFETCH(QString, language);
    const bool hasSpaces = language != QLatin1String("ja");
    const QList<CatalogueEntry> found = entries();
    QVERIFY(!found.isEmpty());
    for (const CatalogueEntry &entry : found) {
        const QString &text = entry.text;
        const QByteArray name = entry.name();
        for (const QString &translation : entry.translations) {
            const QString tag = QStringLiteral("</?[a-z][^>]*>");
            QVERIFY2(allMatches(tag, translation) == allMatches(tag, text), name.constData());
            QVERIFY2(translation.count(QLatin1Char('\n')) == text.count(QLatin1Char('\n')),
                     name.constData());
            for (const QString &mark :
                 {QStringLiteral("\n"), QStringLiteral("..."), QStringLiteral(":")})
                QVERIFY2(translation.endsWith(mark) == text.endsWith(mark), name.constData());
            QVERIFY2(!hasSpaces || (translation.startsWith(QLatin1Char(' ')) ==
                                        text.startsWith(QLatin1Char(' ')) &&
                                    translation.endsWith(QLatin1Char(' ')) ==
                                        text.endsWith(QLatin1Char(' '))),
                     name.constData());
            QVERIFY2(!translation.contains(QStringLiteral("  ")) ||
                         text.contains(QStringLiteral("  ")),
                     name.constData());
        }
    }
}

void tst_Translations::keepsMnemonics()
{
    QFETCH(QString, language);
    const QRegularExpression form(language == QLatin1String("ja") ? QStringLiteral("\\(&[A-Z]\\)")
                                                                  : QStringLiteral("&\\p{L}"));
    const QList<CatalogueEntry> found = entries();
    QVERIFY(!found.isEmpty());
    for (const CatalogueEntry &entry : found) {
        for (const QString &translation : entry.translations) {
            QVERIFY2(mnemonics(translation) == mnemonics(entry.text), entry.name().constData());
            QVERIFY2(mnemonics(translation) == 0 || form.match(translation).hasMatch(),
                     entry.name().constData());
        }
    }
}

void tst_Translations::leavesNamesInFilesAlone()
{
    const QList<CatalogueEntry> found = entries();
    for (const CatalogueEntry &entry : found) {
        // The name of a new channel is stored.
        if (entry.text == QLatin1String("Ch.%1"))
            QCOMPARE(entry.translations, QStringList(entry.text));
    }
}

void tst_Translations::saysOneThingInOneWay()
{
    QFETCH(QString, language);
    // The words of the trade, which a user has to find again from one text to the next.
    const QMap<QString, QStringList> words{
        {QStringLiteral("channel"),
         {QStringLiteral("kanal|kanäl"), QStringLiteral("cana(l|ux)"),
          QStringLiteral("チャンネル")}},
        {QStringLiteral("stage"),
         {QStringLiteral("szene"), QStringLiteral("scène"), QStringLiteral("ステージ")}},
    };
    const int place =
        QStringList{QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("ja")}.indexOf(
            language);
    if (place < 0)
        return;
    const auto caseless =
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption;
    const QList<CatalogueEntry> found = entries();
    for (const CatalogueEntry &entry : found) {
        for (auto word = words.cbegin(); word != words.cend(); ++word) {
            const QRegularExpression english(QStringLiteral("(?<!\")\\b%1s?\\b").arg(word.key()),
                                             caseless);
            const QRegularExpression term(word.value().at(place), caseless);
            if (!english.match(entry.text).hasMatch())
                continue;
            for (const QString &translation : entry.translations)
                QVERIFY2(term.match(translation).hasMatch(), entry.name().constData());
        }
    }
}

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_translations.moc"
