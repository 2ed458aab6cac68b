#include "CMakeProject.h"

#include "TemporaryDataFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// Installs the tree, moves it, and uses it as another project would.
class tst_Install : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void putsFilesInTheirPlaces_data();
    void putsFilesInTheirPlaces();
    void keepsPrivateHeaders();
    void sampleOfTheReadmeBuildsAndRuns();
    void everyHeaderCompilesAlone();
    void programRunsWhereItLies();

private:
    QString prefix() const { return m_folder.filePath(QStringLiteral("moved/usr")); }
    QStringList installedHeaders() const;
    QStringList findInstalled() const;

    QTemporaryDir m_folder;
};

namespace {

/// The code block of README.md that is marked as this file.
QByteArray sample(const QString &name)
{
    QFile readme(QStringLiteral(ZAVO_SOURCE_DIR "/README.md"));
    if (!readme.open(QIODevice::ReadOnly))
        return {};
    const QString marked = QString::fromUtf8(readme.readAll())
                               .section(QStringLiteral("<!-- sample %1 -->").arg(name), 1);
    return marked.section(QStringLiteral("```"), 1, 1).section(QLatin1Char('\n'), 1).toUtf8();
}

} // namespace

QStringList tst_Install::installedHeaders() const
{
    const QDir folder(prefix() + QStringLiteral("/include/zavo"));
    QStringList headers;
    QDirIterator entries(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext())
        headers.append(folder.relativeFilePath(entries.next()));
    return headers;
}

QStringList tst_Install::findInstalled() const
{
    return {QStringLiteral("-DCMAKE_PREFIX_PATH=") + prefix()};
}

void tst_Install::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const QString first = m_folder.filePath(QStringLiteral("first"));
    CMakeProject::run(QStringLiteral(ZAVO_CMAKE),
                      {QStringLiteral("--install"), QStringLiteral(ZAVO_BINARY_DIR),
                       QStringLiteral("--prefix"), first + QStringLiteral("/usr")});
    QVERIFY(QDir().rename(first, m_folder.filePath(QStringLiteral("moved"))));
}

void tst_Install::putsFilesInTheirPlaces_data()
{
    QTest::addColumn<QString>("file");
    for (const auto *file :
         {"bin/zavo-schedule-editor", "share/applications/zavo-schedule-editor.desktop",
          "share/zavo/translations/zavo-schedule-editor_de.qm",
          "share/zavo/translations/zavo-schedule-editor_fr.qm",
          "share/zavo/translations/zavo-schedule-editor_ja.qm",
          "share/icons/hicolor/scalable/apps/zavo-schedule-editor.svg",
          "include/zavo/editor/ZvScheduleEditor.h", "include/zavo/ZvChannel.h",
          "include/zavo/ZvEditorConfig.h", "include/zavo/ZvCoreExport.h"})
        QTest::newRow(file) << QString::fromLatin1(file);
}

void tst_Install::putsFilesInTheirPlaces()
{
    QFETCH(QString, file);
    QVERIFY(QFileInfo(prefix() + QLatin1Char('/') + file).isFile());
}

void tst_Install::keepsPrivateHeaders()
{
    const QStringList headers = installedHeaders();
    QVERIFY(headers.size() > 10);
    for (const auto *folder : {"storage", "timetable", "workspace", "services", "stages"})
        QVERIFY(headers.filter(QLatin1String(folder) + QLatin1Char('/')).isEmpty());
}

void tst_Install::sampleOfTheReadmeBuildsAndRuns()
{
    const QByteArray source = sample(QStringLiteral("main.cpp"));
    QVERIFY(source.contains("int main"));
    const CMakeProject project(m_folder.filePath(QStringLiteral("sample")),
                               sample(QStringLiteral("CMakeLists.txt")), source);
    project.configure(findInstalled());
    project.build();

    const ZavoTest::TemporaryDataFolder data;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZAVO_DATA_DIR"), data.path());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(project.buildFolder() + QStringLiteral("/signage-suite"), {});
    // Ten channels and the basic file come from the editor's first start.
    QTRY_COMPARE_WITH_TIMEOUT(data.names(QStringLiteral("channel")).size(), 11, 20000);
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    QVERIFY(program.waitForFinished());
}

void tst_Install::everyHeaderCompilesAlone()
{
    const QByteArray lists = "cmake_minimum_required(VERSION 3.25)\n"
                             "project(Headers LANGUAGES CXX)\n"
                             "find_package(ZavoScheduleEditor 0.1 REQUIRED)\n"
                             "add_executable(headers main.cpp)\n"
                             "file(GLOB headers *.h.cpp)\n"
                             "target_sources(headers PRIVATE ${headers})\n"
                             "target_link_libraries(headers PRIVATE Zavo::ZvCore"
                             " Zavo::ZvEditorCommon Zavo::ZvScheduleEditor)\n";
    const CMakeProject project(m_folder.filePath(QStringLiteral("headers")), lists,
                               "int main() { return 0; }\n");
    for (const QString &header : installedHeaders()) {
        const QString source = QString(header).replace(QLatin1Char('/'), QLatin1Char('_'));
        project.addSource(source + QStringLiteral(".cpp"),
                          QStringLiteral("#include <%1>\n").arg(header).toUtf8());
    }
    project.configure(findInstalled());
    project.build();
    CMakeProject::run(project.buildFolder() + QStringLiteral("/headers"));
}

void tst_Install::programRunsWhereItLies()
{
    CMakeProject::run(prefix() + QStringLiteral("/bin/zavo-schedule-editor"),
                      {QStringLiteral("--version")});
    QProcess program;
    program.start(prefix() + QStringLiteral("/bin/zavo-schedule-editor"),
                  {QStringLiteral("--language=de"), QStringLiteral("--help")});
    QVERIFY(program.waitForFinished());
    const QString help = QString::fromUtf8(program.readAllStandardOutput());
    QVERIFY2(help.contains(QStringLiteral("Datenordner")), qPrintable(help));
}

QTEST_GUILESS_MAIN(tst_Install)
#include "tst_install.moc"
