#include "CMakeProject.h"

#include <QTemporaryDir>
#include <QtTest>

/// The tree as a part of another project.
class tst_Subdirectory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsAsASubdirectory();
};

void tst_Subdirectory::buildsAsASubdirectory()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const CMakeProject project(folder.path(),
                               "cmake_minimum_required(VERSION 3.25)\n"
                               "project(Suite LANGUAGES CXX)\n"
                               "add_subdirectory(" ZAVO_SOURCE_DIR " zavo EXCLUDE_FROM_ALL)\n"
                               "foreach(part HOST TESTS BENCHMARKS)\n"
                               "  if(ZAVO_BUILD_${part})\n"
                               "    message(FATAL_ERROR \"${part} is on\")\n"
                               "  endif()\n"
                               "endforeach()\n"
                               "if(NOT TARGET Zavo::ZvScheduleEditor)\n"
                               "  message(FATAL_ERROR \"the component is missing\")\n"
                               "endif()\n"
                               "add_executable(suite main.cpp)\n"
                               "target_link_libraries(suite PRIVATE Zavo::ZvCore)\n",
                               "#include \"ZvChannel.h\"\n"
                               "int main() { return Zavo::ZvChannel(QString()).name().size(); }\n");
    project.configure();
    project.build();
    CMakeProject::run(project.buildFolder() + QStringLiteral("/suite"));
}

QTEST_GUILESS_MAIN(tst_Subdirectory)
#include "tst_subdirectory.moc"
