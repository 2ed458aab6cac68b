#pragma once

#include "storage/ChannelFile.h"
#include "storage/XmlScanner.h"

#include <array>
#include <string_view>

namespace Zavo {

/// Reads the bytes of one channel file. Schedules and bands come as they stand in it.
class ChannelFileParser
{
public:
    /// The document must outlive the parser.
    explicit ChannelFileParser(std::string_view document);

    /// False, with @p record half filled, at the first thing that is not as it should be.
    bool run(ChannelRecord *record);

private:
    struct CachedName
    {
        std::string_view raw;
        QString name;
    };
    static constexpr size_t CacheSize = 256;

    bool readSchedule(ZvSchedule *schedule);
    bool readKey(ZvSchedule *schedule) const;
    bool readBand(QList<ZvTime> *bands);
    bool readName(std::string_view raw, QString *name);
    bool readCachedName(std::string_view raw, QString *name);

    XmlScanner m_xml;
    std::array<CachedName, CacheSize> m_names; // of stages, which come again and again
};

} // namespace Zavo
