#include "safety/SessionRecord.h"

#include "Path.h"
#include "storage/BoundedFile.h"
#include "storage/DurableFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace Zavo {

namespace {
constexpr int maximumRecordBytes = 4 * 1024 * 1024;
const QLatin1String startedKey("started");
const QLatin1String unsavedKey("unsavedChannels");
} // namespace

SessionRecord::SessionRecord(const QString &dataDir)
    : m_filePath(Path::combine(dataDir, QStringLiteral(".zavo-session")))
{
}

std::optional<SessionRecord::Session> SessionRecord::read() const
{
    if (!QFileInfo(m_filePath).isFile())
        return std::nullopt;
    Session session;
    QByteArray bytes;
    if (!BoundedFile::read(m_filePath, maximumRecordBytes, &bytes))
        return session;
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    session.started = QDateTime::fromString(object.value(startedKey).toString(), Qt::ISODate);
    const QJsonArray names = object.value(unsavedKey).toArray();
    for (const QJsonValue &name : names)
        session.unsavedChannels.append(name.toString());
    return session;
}

QString SessionRecord::sentence(const Session &session)
{
    constexpr int maximumNames = 10;
    QString text = session.started.isValid()
                       ? tr("The last session, begun at %1, did not end properly.")
                             .arg(QLocale().toString(session.started, QLocale::ShortFormat))
                       : tr("The last session did not end properly.");
    text += QLatin1Char('\n');
    if (session.unsavedChannels.isEmpty())
        return text + tr("It had no edits that were not saved.");
    QStringList names = session.unsavedChannels.mid(0, maximumNames);
    if (session.unsavedChannels.size() > maximumNames)
        names.append(tr("and %n more", "", session.unsavedChannels.size() - maximumNames));
    return text + tr("Edits since the last save were lost in: %1.\n"
                     "All that was saved before is in the channel files.")
                      .arg(names.join(QStringLiteral(", ")));
}

bool SessionRecord::write(const Session &session) const
{
    QJsonObject object;
    object.insert(startedKey, session.started.toString(Qt::ISODate));
    object.insert(unsavedKey, QJsonArray::fromStringList(session.unsavedChannels));
    return DurableFile::write(m_filePath, QJsonDocument(object).toJson());
}

void SessionRecord::remove() const
{
    QFile::remove(m_filePath);
}

} // namespace Zavo
