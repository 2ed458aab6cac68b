#include "timetable/BandMemory.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include <new>

namespace Zavo {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(ZAVO_SANITIZE)
constexpr bool Kept = false; // memory that is used again hides the use of a dead band
#else
constexpr bool Kept = true;
#endif

constexpr std::size_t BlocksAtOnce = 128;

constexpr std::size_t aligned(std::size_t size)
{
    constexpr std::size_t unit = alignof(std::max_align_t);
    return (size + unit - 1) / unit * unit;
}

} // namespace

BandMemory::BandMemory(QObject *parent)
    : QObject(parent)
{
}

// A band that outlives the application keeps its piece, with all others, to the end of the process.
BandMemory::~BandMemory()
{
    if (m_free.size() + m_resting.size() >= m_pieces.size() * BlocksAtOnce)
        return;
    for (auto &piece : m_pieces)
        static_cast<void>(piece.release());
}

BandMemory *BandMemory::instance()
{
    static QPointer<BandMemory> memory;
    if (!memory && QCoreApplication::instance())
        memory = new BandMemory(QCoreApplication::instance());
    return memory;
}

void *BandMemory::take(std::size_t size)
{
    BandMemory *self = Kept ? instance() : nullptr;
    if (!self)
        return ::operator new(size);
    if (self->m_free.empty())
        self->grow(aligned(size));
    void *memory = self->m_free.back();
    self->m_free.pop_back();
    return memory;
}

// In one piece, the first block on top: whatever else the heap holds, bands that are made one after
// the other lie in their order.
void BandMemory::grow(std::size_t blockSize)
{
    m_pieces.push_back(std::make_unique<std::byte[]>(BlocksAtOnce * blockSize));
    for (std::size_t i = BlocksAtOnce; i > 0; --i)
        m_free.push_back(m_pieces.back().get() + (i - 1) * blockSize);
}

void BandMemory::give(void *memory)
{
    BandMemory *self = Kept && memory ? instance() : nullptr;
    if (self)
        self->rest(memory);
    else if (!Kept)
        ::operator delete(memory);
}

void BandMemory::rest(void *memory)
{
    m_resting.push_back(memory);
    if (m_due == 0)
        wakeLater();
}

// Events of a thread are delivered in the order in which they were posted, whoever receives them.
void BandMemory::wakeLater()
{
    m_due = m_resting.size();
    if (m_due > 0)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void BandMemory::customEvent(QEvent *)
{
    const auto end = m_resting.begin() + static_cast<std::ptrdiff_t>(m_due);
    m_free.insert(m_free.end(), m_resting.begin(), end);
    m_resting.erase(m_resting.begin(), end);
    wakeLater();
}

} // namespace Zavo
