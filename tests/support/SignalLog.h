#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantList>

namespace ZavoTest {

/// Writes down the signals of several objects in the order in which they are emitted.
///
///     SignalLog log;
///     log.watch(&editor, SIGNAL(closed()));
///     log.watch(&page, SIGNAL(timeItemInserted(int)), "inserted");
///     ...
///     QCOMPARE(log.names(), QStringList({"inserted", "closed"}));
class SignalLog final : public QObject
{
public:
    SignalLog() = default;

    /// @p signal is what SIGNAL() gives; an unknown one fails the test. The entry's name is
    /// @p name, or the signal's own name without its parameters.
    void watch(const QObject *sender, const char *signal, const char *name = nullptr);

    /// One name for each signal that came, oldest first.
    QStringList names() const;

    int count(const QString &name) const;

    /// The arguments of entry @p index; one of a type unknown to the meta-type system is invalid.
    QVariantList arguments(int index) const;

    /// Forgets the entries, not what is watched.
    void clear();

    int qt_metacall(QMetaObject::Call call, int methodId, void **arguments) override;

private:
    struct Source
    {
        QString name;
        QList<int> types;
    };
    struct Entry
    {
        QString name;
        QVariantList arguments;
    };

    QList<Source> m_sources;
    QList<Entry> m_entries;
};

} // namespace ZavoTest
