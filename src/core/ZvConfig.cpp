#include "ZvConfig.h"

#include "storage/BoundedFile.h"
#include "storage/DurableFile.h"
#include "storage/IniText.h"

#include <QDebug>
#include <QFileInfo>

namespace Zavo {

namespace {
constexpr int MaximumFileBytes = 1024 * 1024;
constexpr char AllInOneKey[] = "AllInOne";
constexpr char DefaultScheduleUsedFirstKey[] = "DefaultScheduleUsedFirst";
constexpr char RemovingDurationKey[] = "RemovingDuration";

bool readText(const QString &filePath, IniText *text)
{
    QByteArray bytes;
    if (!BoundedFile::read(filePath, MaximumFileBytes, &bytes))
        return false;
    *text = IniText(bytes);
    return true;
}

void warn(const char *key, const QByteArray &value)
{
    qWarning("config.ini: \"%s\" is no value for %s", value.constData(), key);
}

bool toBool(const IniText &text, const char *key, bool defaultValue)
{
    const QByteArray value = text.value(key);
    const QByteArray word = value.toLower();
    if (value.isNull())
        return defaultValue;
    if (word == "true" || word == "1")
        return true;
    if (word == "false" || word == "0")
        return false;
    warn(key, value);
    return defaultValue;
}

int toCount(const IniText &text, const char *key, int defaultValue)
{
    const QByteArray value = text.value(key);
    if (value.isNull())
        return defaultValue;
    bool ok = false;
    const int count = value.toInt(&ok);
    if (ok && count >= 0)
        return count;
    warn(key, value);
    return defaultValue;
}

QByteArray toText(bool value)
{
    return value ? "true" : "false";
}
} // namespace

ZvConfig::ZvConfig(const QString &filePath)
    : m_filePath(filePath)
{
    IniText text;
    readText(filePath, &text);
    m_allInOne = toBool(text, AllInOneKey, m_allInOne);
    m_defaultScheduleUsedFirst =
        toBool(text, DefaultScheduleUsedFirstKey, m_defaultScheduleUsedFirst);
    m_removingDurationDays = toCount(text, RemovingDurationKey, m_removingDurationDays);
}

bool ZvConfig::write() const
{
    IniText text;
    // What could not be read must not be lost by writing over it.
    if (!readText(m_filePath, &text) && QFileInfo::exists(m_filePath))
        return false;
    text.setValue(AllInOneKey, toText(m_allInOne));
    text.setValue(DefaultScheduleUsedFirstKey, toText(m_defaultScheduleUsedFirst));
    text.setValue(RemovingDurationKey, QByteArray::number(m_removingDurationDays));
    return DurableFile::write(m_filePath, text.toBytes());
}

} // namespace Zavo
