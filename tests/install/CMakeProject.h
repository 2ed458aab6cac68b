#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A small project of another author, which uses this tree. A step that fails fails the test with
/// what the tools printed.
class CMakeProject final
{
public:
    /// Writes CMakeLists.txt and main.cpp into @p folder.
    CMakeProject(const QString &folder, const QByteArray &lists, const QByteArray &source);

    QString buildFolder() const;

    /// Writes one more source file.
    void addSource(const QString &name, const QByteArray &content) const;

    void configure(const QStringList &options = {}) const;
    void build() const;

    /// Runs a command to its end.
    static void run(const QString &command, const QStringList &arguments = {});

private:
    QString m_folder;
};
