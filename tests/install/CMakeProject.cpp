#include "CMakeProject.h"

#include "Command.h"

#include <QDir>
#include <QFile>
#include <QtTest>

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
    const Command ended = Command::run(command, arguments);
    QVERIFY2(ended.exitCode == 0, ended.output.constData());
}
