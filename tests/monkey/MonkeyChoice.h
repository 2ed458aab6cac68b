#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

#include <random>

namespace ZavoTest {

/// Chooses at random, the same for the same seed on every machine.
class MonkeyChoice final
{
public:
    explicit MonkeyChoice(unsigned seed)
        : m_engine(seed)
    {
    }

    /// From 0 to @p count less one; 0 if there is nothing to choose from.
    int below(int count)
    {
        return count < 1 ? 0 : static_cast<int>(m_engine() % static_cast<unsigned>(count));
    }

    int between(int first, int last) { return first + below(last - first + 1); }

    bool chance(int percent) { return below(100) < percent; }

    QPoint pointIn(const QRect &rect)
    {
        const int x = rect.left() + below(rect.width());
        return {x, rect.top() + below(rect.height())};
    }

    /// One of a list that is not empty.
    template<typename List>
    auto from(const List &list)
    {
        return list.at(below(static_cast<int>(list.size())));
    }

private:
    std::mt19937 m_engine;
};

} // namespace ZavoTest
