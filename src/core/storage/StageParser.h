#pragma once

#include "storage/StagePictures.h"
#include "storage/StageRecord.h"
#include "storage/XmlScanner.h"

#include <QByteArray>

#include <optional>
#include <string_view>

namespace Zavo {

/// Reads the scene of one stage.
class StageParser
{
public:
    static constexpr int MaximumBytes = 64 * 1024 * 1024;
    static constexpr int MaximumItems = 10000;

    /// Document and pictures must outlive the parser.
    StageParser(std::string_view document, const StagePictures &pictures);

    /// False, with @p record half filled, at the first thing that is not as it should be. A picture
    /// that cannot be had is no such thing.
    bool run(StageRecord *record);

private:
    bool readStage(StageRecord *record);
    bool readItem(ZvStageItem *item);
    bool readBox(QRectF *box) const;
    bool readTextStyle(ZvStageItem *item) const;
    std::optional<qreal> number(std::string_view name) const;
    std::optional<QColor> color(std::string_view name) const;

    XmlScanner m_xml;
    PictureLoader m_loader;
};

} // namespace Zavo
