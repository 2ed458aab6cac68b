#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// What a command said and how it ended.
struct Command final
{
    /// Runs @p program to its end, for four minutes at most.
    static Command
    run(const QString &program, const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

    /// The exit code, -1 if the program did not start, did not end or crashed.
    int exitCode = -1;
    /// Both of its outputs, as they came.
    QByteArray output;
};
