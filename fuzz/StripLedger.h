#pragma once

#include "ZvChannel.h"

#include <QString>

#include <optional>
#include <vector>

class QUndoCommand;

namespace ZavoFuzz {

class StripHouse;

/// The simple model of the history: what the channel held at each of its places. Whatever is done,
/// the same place has the same content.
class StripLedger final
{
public:
    explicit StripLedger(const StripHouse &house);

    /// To be called after every step. In the middle of a gesture the content may be anything, but
    /// the bands have to be in order all the same.
    void check(bool isInGesture);

    /// Goes back to the first place and forth to the last one, with all contents as they were.
    void walk();

private:
    void checkBands() const;
    void checkSelection() const;
    void checkContent();
    void go(int place);

    const StripHouse &m_house;
    std::vector<std::optional<Zavo::ZvChannel>> m_contents;
    std::vector<const QUndoCommand *> m_commands;
};

} // namespace ZavoFuzz
