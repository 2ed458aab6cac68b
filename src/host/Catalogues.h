#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QLocale;

namespace Zavo {

/// The translations of the texts on the screen: Qt's own and ours. They are in force while the
/// object lives.
class Catalogues final : public QObject
{
    Q_OBJECT

public:
    /// @p folders are searched for our catalogues, the first one that has a catalogue wins.
    explicit Catalogues(const QStringList &folders, QObject *parent = nullptr);

    /// Where our catalogues lie: beside the program, and where an installation puts them.
    static QStringList standardFolders();

    /// Loads what there is for @p language ("de", "pt_BR"); empty stands for the system's own.
    /// False if it is the name of no language. Without a catalogue the texts stay English.
    bool load(const QString &language);

private:
    void loadFor(const QLocale &locale);
    bool loadCatalogue(const QLocale &locale, const QString &name, const QString &folder);

    QStringList m_folders;
};

} // namespace Zavo
