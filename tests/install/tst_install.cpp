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
    void buildsAsASubdirectory();

private:
    QString prefix() const { return m_folder.filePath(QStringLiteral("moved/usr")); }
    void writeProject(const QString &folder, const QString &lists, const QByteArray &source);
    void configure(const QString &folder, const QStringList &options = {});

    QTemporaryDir m_folder;
};

namespace {

/// Runs a command to its end; what it printed is shown if it fails.
void run(const QString &command, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(command, arguments);
    const bool ended = process.waitForFinished(500000);
    const QByteArray output = process.readAll();
    QVERIFY2(ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             output.constData());
}

void cmake(const QStringList &arguments)
{
    run(QStringLiteral(ZAVO_CMAKE), arguments);
}

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

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

QStringList installedHeaders(const QString &includeFolder)
{
    QStringList headers;
    QDirIterator entries(includeFolder, {QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        headers.append(QDir(includeFolder).relativeFilePath(entries.next()));
    return headers;
}

} // namespace

void tst_Install::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const QString first = m_folder.filePath(QStringLiteral("first"));
    cmake({QStringLiteral("--install"), QStringLiteral(ZAVO_BINARY_DIR), QStringLiteral("--prefix"),
           first + QStringLiteral("/usr")});
    QVERIFY(QDir().rename(first, m_folder.filePath(QStringLiteral("moved"))));
}

void tst_Install::putsFilesInTheirPlaces_data()
{
    QTest::addColumn<QString>("file");
    for (const auto *file :
         {"bin/zavo-schedule-editor", "share/applications/zavo-schedule-editor.desktop",
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
    const QStringList headers = installedHeaders(prefix() + QStringLiteral("/include/zavo"));
    QVERIFY(headers.size() > 10);
    for (const auto *folder : {"storage", "timetable", "workspace", "services", "stages"})
        QVERIFY(headers.filter(QLatin1String(folder) + QLatin1Char('/')).isEmpty());
}

void tst_Install::writeProject(const QString &folder, const QString &lists,
                               const QByteArray &source)
{
    write(folder + QStringLiteral("/CMakeLists.txt"), lists.toUtf8());
    write(folder + QStringLiteral("/main.cpp"), source);
}

void tst_Install::configure(const QString &folder, const QStringList &options)
{
    cmake(QStringList{QStringLiteral("-S"), folder, QStringLiteral("-B"),
                      folder + QStringLiteral("/build"), QStringLiteral("-G"),
                      QStringLiteral(ZAVO_GENERATOR),
                      QStringLiteral("-DCMAKE_CXX_COMPILER=" ZAVO_CXX_COMPILER),
                      QStringLiteral("-DCMAKE_PREFIX_PATH=") + prefix()} +
          options);
}

void tst_Install::sampleOfTheReadmeBuildsAndRuns()
{
    const QString folder = m_folder.filePath(QStringLiteral("sample"));
    const QByteArray source = sample(QStringLiteral("main.cpp"));
    QVERIFY(source.contains("int main"));
    writeProject(folder, QString::fromUtf8(sample(QStringLiteral("CMakeLists.txt"))), source);
    configure(folder);
    const QString build = folder + QStringLiteral("/build");
    cmake({QStringLiteral("--build"), build});

    const ZavoTest::TemporaryDataFolder data;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZAVO_DATA_DIR"), data.path());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(build + QStringLiteral("/signage-suite"), {});
    // Ten channels and the basic file come from the editor's first start.
    QTRY_COMPARE_WITH_TIMEOUT(data.names(QStringLiteral("channel")).size(), 11, 20000);
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    QVERIFY(program.waitForFinished());
}

void tst_Install::everyHeaderCompilesAlone()
{
    const QString folder = m_folder.filePath(QStringLiteral("headers"));
    const QStringList headers = installedHeaders(prefix() + QStringLiteral("/include/zavo"));
    QStringList sources;
    for (const QString &header : headers) {
        const QString source =
            QString(header).replace(QLatin1Char('/'), QLatin1Char('_')) + QStringLiteral(".cpp");
        write(folder + QLatin1Char('/') + source,
              QStringLiteral("#include <%1>\n").arg(header).toUtf8());
        sources.append(source);
    }
    const auto lists = QStringLiteral("cmake_minimum_required(VERSION 3.25)\n"
                                      "project(Headers LANGUAGES CXX)\n"
                                      "find_package(ZavoScheduleEditor 0.1 REQUIRED)\n"
                                      "add_executable(headers main.cpp %1)\n"
                                      "target_link_libraries(headers PRIVATE Zavo::ZvCore"
                                      " Zavo::ZvEditorCommon Zavo::ZvScheduleEditor)\n");
    writeProject(folder, lists.arg(sources.join(QLatin1Char(' '))), "int main() { return 0; }\n");
    configure(folder);
    cmake({QStringLiteral("--build"), folder + QStringLiteral("/build")});
    run(folder + QStringLiteral("/build/headers"), {});
}

void tst_Install::programRunsWhereItLies()
{
    run(prefix() + QStringLiteral("/bin/zavo-schedule-editor"), {QStringLiteral("--version")});
}

void tst_Install::buildsAsASubdirectory()
{
    const QString folder = m_folder.filePath(QStringLiteral("suite"));
    const auto lists = QStringLiteral("cmake_minimum_required(VERSION 3.25)\n"
                                      "project(Suite LANGUAGES CXX)\n"
                                      "add_subdirectory(%1 zavo)\n"
                                      "foreach(part HOST TESTS BENCHMARKS)\n"
                                      "  if(ZAVO_BUILD_${part})\n"
                                      "    message(FATAL_ERROR \"${part} is on\")\n"
                                      "  endif()\n"
                                      "endforeach()\n"
                                      "add_executable(suite main.cpp)\n"
                                      "target_link_libraries(suite PRIVATE Zavo::ZvEditorCommon)\n"
                                      "if(NOT TARGET Zavo::ZvScheduleEditor)\n"
                                      "  message(FATAL_ERROR \"the component is missing\")\n"
                                      "endif()\n");
    writeProject(folder, lists.arg(QStringLiteral(ZAVO_SOURCE_DIR)),
                 "#include \"ZvEditorConfig.h\"\n"
                 "int main() { return Zavo::ZvEditorConfig::dataDir().isEmpty(); }\n");
    configure(folder);
    cmake({QStringLiteral("--build"), folder + QStringLiteral("/build"), QStringLiteral("--target"),
           QStringLiteral("suite")});
    run(folder + QStringLiteral("/build/suite"), {});
}

QTEST_GUILESS_MAIN(tst_Install)
#include "tst_install.moc"
