#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QLocale;

namespace Zavo {

/// The translations of the texts on the screen: ours, and Qt's own in the same language. They are
/// in force while the object lives.
class Catalogues final : public QObject
{
    Q_OBJECT

public:
    /// @p folders are searched for our catalogues, the first one that has a catalogue wins.
    explicit Catalogues(const QStringList &folders, QObject *parent = nullptr);

    /// Where our catalogues lie: beside the program, and where an installation puts them.
    static QStringList standardFolders();

    /// The languages that @p folders have catalogues for, "de" or "pt_BR", sorted.
    static QStringList languages(const QStringList &folders);

    /// Loads what there is for @p language ("de", "pt_BR"); empty stands for the system's
    /// languages, of which the first with a catalogue of ours is taken. False if it is the name of
    /// no language. Without a catalogue all texts, Qt's too, stay English.
    bool load(const QString &language);

private:
    void loadFor(const QLocale &locale);
    /// The language of the catalogue; empty if there is none.
    QString loadCatalogue(const QLocale &locale, const QString &name, const QString &folder);

    QStringList m_folders;
};

} // namespace Zavo
