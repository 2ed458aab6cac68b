#include "IncludeTable.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

class tst_Includes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFolderHasARow();
    void docksDoNotSeeWorkingAreas();
    void aLowerRoomDoesNotSeeAHigherOne();
    void sourcesKeepToTheTable();
    void findsWhatIsNotAllowed_data();
    void findsWhatIsNotAllowed();

private:
    const QString m_source = QStringLiteral(ZAVO_SOURCE_DIR "/src");
    IncludeTable m_table;
};

namespace {

QStringList sourceFiles(const QString &folder)
{
    QStringList files;
    const QStringList filters{QStringLiteral("*.h"), QStringLiteral("*.cpp")};
    QDirIterator entries(folder, filters, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext())
        files.append(QDir(folder).relativeFilePath(entries.next()));
    return files;
}

void write(const QDir &folder, const QString &name, const QByteArray &content)
{
    folder.mkpath(QFileInfo(name).path());
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace

void tst_Includes::initTestCase()
{
    QFile document(QStringLiteral(ZAVO_SOURCE_DIR "/docs/architecture.md"));
    QVERIFY(document.open(QIODevice::ReadOnly));
    m_table = IncludeTable::fromMarkdown(QString::fromUtf8(document.readAll()));
    QVERIFY(m_table.folders().size() >= 10);
}

void tst_Includes::everyFolderHasARow()
{
    for (const QString &folder : m_table.folders()) {
        QVERIFY2(QDir(m_source).exists(folder), qPrintable(folder));
        for (const QString &allowed : m_table.allowed(folder)) {
            const bool header = allowed.endsWith(QLatin1String(".h"));
            QVERIFY2(header || m_table.folders().contains(allowed), qPrintable(allowed));
        }
    }
}

void tst_Includes::docksDoNotSeeWorkingAreas()
{
    for (const auto *dock : {"scheduleeditor/navigation", "scheduleeditor/stages"}) {
        const QStringList allowed = m_table.allowed(QString::fromLatin1(dock));
        QVERIFY(!allowed.isEmpty());
        QVERIFY(allowed.filter(QStringLiteral("timetable")).isEmpty());
        QVERIFY(allowed.filter(QStringLiteral("workspace")).isEmpty());
    }
}

void tst_Includes::aLowerRoomDoesNotSeeAHigherOne()
{
    const QStringList rooms{QStringLiteral("core"), QStringLiteral("editorcommon"),
                            QStringLiteral("scheduleeditor"), QStringLiteral("host")};
    for (const QString &folder : m_table.folders()) {
        const int level = rooms.indexOf(folder.section(QLatin1Char('/'), 0, 0));
        QVERIFY2(level >= 0, qPrintable(folder));
        for (const QString &allowed : m_table.allowed(folder))
            QVERIFY(rooms.indexOf(allowed.section(QLatin1Char('/'), 0, 0)) <= level);
    }
}

void tst_Includes::sourcesKeepToTheTable()
{
    const QStringList files = sourceFiles(m_source);
    QVERIFY(!files.isEmpty());
    QStringList findings;
    for (const QString &file : files)
        findings += m_table.findings(m_source, file);
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(QLatin1Char('\n'))));
}

void tst_Includes::findsWhatIsNotAllowed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("findings");
    const QString stage = QStringLiteral("scheduleeditor/stages/A.cpp");
    QTest::newRow("own folder") << stage << QByteArray("#include \"stages/B.h\"\n") << 0;
    QTest::newRow("beside it") << stage << QByteArray("#include \"B.h\"\n") << 0;
    QTest::newRow("below") << stage << QByteArray("#include \"C.h\"\n#include <QList>\n") << 0;
    QTest::newRow("generated") << stage << QByteArray("#include \"ZvCoreExport.h\"\n") << 0;
    QTest::newRow("dock to page") << stage << QByteArray("#include \"timetable/Page.h\"\n") << 1;
    QTest::newRow("by way of the parent")
        << stage << QByteArray("  #  include \"../timetable/Page.h\"\n") << 1;
    QTest::newRow("upwards") << QStringLiteral("core/C.cpp")
                             << QByteArray("#include \"stages/B.h\"\n#include \"C.h\"\n") << 1;
    QTest::newRow("nowhere") << stage << QByteArray("#include \"Nowhere.h\"\n") << 1;
    QTest::newRow("sub-folder") << QStringLiteral("core/storage/D.cpp")
                                << QByteArray("#include \"storage/D.h\"\n#include \"C.h\"\n") << 0;
    QTest::newRow("unknown folder") << QStringLiteral("attic/E.cpp") << QByteArray() << 1;
}

void tst_Includes::findsWhatIsNotAllowed()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QTemporaryDir tree;
    const QDir folder(tree.path());
    for (const auto *header : {"core/C.h", "core/storage/D.h", "scheduleeditor/stages/B.h",
                               "scheduleeditor/timetable/Page.h"})
        write(folder, QString::fromLatin1(header), "#pragma once\n");
    write(folder, file, content);
    QTEST(m_table.findings(tree.path(), file).size(), "findings");
}

QTEST_GUILESS_MAIN(tst_Includes)
#include "tst_includes.moc"
