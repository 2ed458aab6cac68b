#include "ZvStage.h"

#include "storage/StageFile.h"

#include <QSharedData>

namespace Zavo {

class ZvStageData : public QSharedData
{
public:
    QString filePath;
    StageRecord record;
};

ZvStage::ZvStage(const QString &filePath)
    : m_data(new ZvStageData)
{
    m_data->filePath = filePath;
}

ZvStage::ZvStage(const ZvStage &other) = default;
ZvStage &ZvStage::operator=(const ZvStage &other) = default;
ZvStage::~ZvStage() = default;

QString ZvStage::filePath() const
{
    return m_data->filePath;
}

bool ZvStage::isEmpty() const
{
    return m_data->record.size.isEmpty();
}

QSize ZvStage::size() const
{
    return m_data->record.size;
}

QColor ZvStage::background() const
{
    return m_data->record.background;
}

QList<ZvStageItem> ZvStage::items() const
{
    return m_data->record.items;
}

bool ZvStage::readFile()
{
    StageRecord record;
    if (!StageFile::read(filePath(), &record))
        return false;
    m_data->record = record;
    return true;
}

} // namespace Zavo
