#include "upload/UploadLog.h"

#include "Path.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace Zavo {

namespace {
constexpr int mostLogsAside = 200;
constexpr int indentOfTime = 10;
const auto logName = QLatin1String("UploadLog.txt");

/// One line whatever is in the text.
QString oneLine(const QString &text)
{
    QString line = text;
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    }
    return line;
}
} // namespace

UploadLog::UploadLog(const QString &folder)
    : m_folder(folder)
    , m_file(Path::combine(folder, logName))
{
}

bool UploadLog::begin()
{
    QDir().mkpath(m_folder);
    putAside();
    removeOldest();
    // Where the one before could not be put aside, this one follows it in the same file.
    m_isWhole = m_file.open(QIODevice::WriteOnly | QIODevice::Append);
    return m_isWhole;
}

void UploadLog::write(const QString &line)
{
    append(QLocale::c().toString(QTime::currentTime(), QStringLiteral("hh:mm:ss  ")) +
           oneLine(line));
}

void UploadLog::writeDetails(const QStringList &lines)
{
    for (const QString &line : lines)
        append(QString(indentOfTime, QLatin1Char(' ')) + oneLine(line));
}

void UploadLog::putAside()
{
    const QFileInfo last(m_file);
    if (!last.exists())
        return;
    const QString time =
        QLocale::c().toString(last.lastModified(), QStringLiteral("yyyy-MM-dd hh-mm-ss.zzz"));
    for (int number = 1; number < mostLogsAside; ++number) {
        const QString more = number == 1 ? QString() : QStringLiteral("_%1").arg(number);
        const QString name = QStringLiteral("%1%2 %3").arg(time, more, logName);
        if (QFile::rename(m_file.fileName(), Path::combine(m_folder, name)))
            return;
    }
}

void UploadLog::removeOldest() const
{
    QDir folder(m_folder);
    const QStringList names = folder.entryList(
        {QStringLiteral("[0-9][0-9][0-9][0-9]-* *UploadLog.txt")}, QDir::Files, QDir::Name);
    for (int index = 0; index < names.size() - mostLogsAside; ++index)
        folder.remove(names.at(index));
}

void UploadLog::append(const QString &text)
{
    if (!m_file.isOpen())
        return;
    const QByteArray bytes = text.toUtf8() + '\n';
    if (m_file.write(bytes) != bytes.size() || !m_file.flush())
        m_isWhole = false;
}

} // namespace Zavo
