#pragma once

#include <QObject>

#include <cstddef>
#include <memory>
#include <vector>

namespace Zavo {

/// The memory of bands that went, for those that come after them.
///
/// The scene keeps its items sorted by their address, so a table whose bands lie in memory as they
/// are ordered leaves it from the end of its list. Bands of the next table therefore take the
/// memory of those before, the last one that went first.
///
/// A band that went can still be named by a report that is queued, and the receiver tells dead
/// bands by their address. So no memory is used again before everything that was queued at the time
/// has been delivered.
///
/// One for the application, which keeps the memory until its end.
class BandMemory final : public QObject
{
    Q_OBJECT

public:
    /// Memory for a band of @p size bytes, which is the same for all.
    static void *take(std::size_t size);
    /// Takes back what take() gave. Nothing happens for null.
    static void give(void *memory);

    ~BandMemory() override;

protected:
    void customEvent(QEvent *event) override;

private:
    explicit BandMemory(QObject *parent);

    static BandMemory *instance();
    void grow(std::size_t blockSize);
    void rest(void *memory);
    void wakeLater();

    std::vector<std::unique_ptr<std::byte[]>> m_pieces;
    std::vector<void *> m_free;
    std::vector<void *> m_resting;
    std::size_t m_due = 0; // of those at rest, from the first on
};

} // namespace Zavo
