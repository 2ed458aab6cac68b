#include "CMakeProject.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

namespace {
constexpr int longestStepMs = 240000;
} // namespace

CMakeProject::CMakeProject(const QString &folder, const QByteArray &lists, const QByteArray &source)
    : m_folder(folder)
{
    addSource(QStringLiteral("CMakeLists.txt"), lists);
    addSource(QStringLiteral("main.cpp"), source);
}

QString CMakeProject::buildFolder() const
{
    return m_folder + QStringLiteral("/build");
}

void CMakeProject::addSource(const QString &name, const QByteArray &content) const
{
    QVERIFY(QDir().mkpath(m_folder));
    QFile file(QDir(m_folder).filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void CMakeProject::configure(const QStringList &options) const
{
    const QStringList arguments{QStringLiteral("-S"),
                                m_folder,
                                QStringLiteral("-B"),
                                buildFolder(),
                                QStringLiteral("-G"),
                                QStringLiteral(ZAVO_GENERATOR),
                                QStringLiteral("-DCMAKE_CXX_COMPILER=" ZAVO_CXX_COMPILER),
                                QStringLiteral("-DCMAKE_CXX_COMPILER_LAUNCHER=" ZAVO_LAUNCHER)};
    run(QStringLiteral(ZAVO_CMAKE), arguments + options);
}

void CMakeProject::build() const
{
    run(QStringLiteral(ZAVO_CMAKE), {QStringLiteral("--build"), buildFolder()});
}

void CMakeProject::run(const QString &command, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(command, arguments);
    const bool ended = process.waitForFinished(longestStepMs);
    const QByteArray output = process.readAll();
    QVERIFY2(ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             output.constData());
}
