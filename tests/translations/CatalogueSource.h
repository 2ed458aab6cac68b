#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A text of the program with its translation, as translators edit it.
struct CatalogueEntry
{
    QString context;
    QString text;
    QStringList translations; ///< one; or one a plural form
    QString state;            ///< empty if finished
    bool isPlural = false;

    /// For messages of tests.
    QByteArray name() const;
};

/// The source of a catalogue.
class CatalogueSource final
{
public:
    explicit CatalogueSource(const QString &filePath);

    /// Empty if the file cannot be read.
    QList<CatalogueEntry> entries() const { return m_entries; }

private:
    QList<CatalogueEntry> m_entries;
};
