#pragma once

#include <QAbstractItemModel>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

/// A folder on the disk that a test fills and changes. Its root lies one level below a folder of
/// its own, so that a test can take it away and put it back.
class FolderFixture
{
public:
    FolderFixture() { mkpath(QString()); }

    QString root() const { return m_temporary.filePath(QStringLiteral("stage")); }
    QString above() const { return m_temporary.path(); }
    QString path(const QString &name) const
    {
        return name.isEmpty() ? root() : root() + QLatin1Char('/') + name;
    }

    void mkpath(const QString &name) const { QVERIFY(QDir().mkpath(path(name))); }
    void removeRoot() const { QVERIFY(QDir(root()).removeRecursively()); }

    void write(const QString &name, const QByteArray &content = "x") const
    {
        QFile file(path(name));
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.fileName()));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    void write(const QStringList &names) const
    {
        for (const QString &name : names)
            write(name);
    }

    void remove(const QString &name) const { QVERIFY(QFile::remove(path(name))); }

    void rename(const QString &from, const QString &to) const
    {
        QVERIFY(QFile::rename(path(from), path(to)));
    }

private:
    QTemporaryDir m_temporary;
};

/// The names below @p parent in the order of their rows.
inline QStringList namesBelow(const QAbstractItemModel &model, const QModelIndex &parent)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(parent); ++row)
        names << model.index(row, 0, parent).data().toString();
    return names;
}
