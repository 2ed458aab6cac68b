#include "CatalogueSource.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

CatalogueEntry readEntry(QXmlStreamReader *xml, const QString &context)
{
    CatalogueEntry entry;
    entry.context = context;
    entry.isPlural = xml->attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml->readNextStartElement()) {
        if (xml->name() == QLatin1String("source")) {
            entry.text = xml->readElementText();
        } else if (xml->name() == QLatin1String("translation")) {
            entry.state = xml->attributes().value(QLatin1String("type")).toString();
            if (!entry.isPlural)
                entry.translations.append(xml->readElementText());
            while (entry.isPlural && xml->readNextStartElement())
                entry.translations.append(xml->readElementText());
        } else {
            xml->skipCurrentElement();
        }
    }
    return entry;
}

} // namespace

QByteArray CatalogueEntry::name() const
{
    return QStringLiteral("%1: \"%2\" -> \"%3\" %4")
        .arg(context, text, translations.join(QLatin1Char('|')), state)
        .toUtf8();
}

CatalogueSource::CatalogueSource(const QString &filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            m_entries.append(readEntry(&xml, context));
    }
    if (xml.hasError())
        m_entries.clear();
}
