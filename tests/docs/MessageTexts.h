#pragma once

#include <QDir>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QVector>

/// The sentences that the sources show in message boxes, found by reading the sources: what stands
/// in the call that shows a box, in a variable that is given to it, and in the calls of functions
/// and signals that hand a text on to one.
class MessageTexts final
{
public:
    /// Reads all sources below @p sources. In the files of @p suppliers, paths below it, every
    /// sentence counts: they word what others show.
    MessageTexts(const QDir &sources, const QStringList &suppliers);

    /// Each text as it is translated, with the file that has it.
    QMap<QString, QString> texts() const { return m_texts; }

private:
    struct Function
    {
        QString file;
        QString scope; // the class, empty for none
        QString name;
        QStringList textParameters;
        QString body;
    };

    void readFunctions(const QString &file, const QString &source);
    bool findWays();
    void collect(const Function &function);
    void add(const QString &code, const QString &file);
    QStringList callsThatShow(const Function &function) const;

    QVector<Function> m_functions;
    // The classes whose functions of a name show a text; a signal's name is shown by every class.
    QHash<QString, QSet<QString>> m_ways;
    QMap<QString, QString> m_texts;
};
