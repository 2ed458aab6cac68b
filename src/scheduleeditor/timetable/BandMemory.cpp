#include "timetable/BandMemory.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include <new>

namespace Zavo {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t KeptBlocks = 0; // memory that is used again hides the use of a dead band
#else
constexpr std::size_t KeptBlocks = 4320; // bands of the densest table that is edited in practice
#endif

} // namespace

BandMemory::BandMemory(QObject *parent)
    : QObject(parent)
{
}

BandMemory::~BandMemory()
{
    for (void *memory : m_free)
        ::operator delete(memory);
    for (void *memory : m_resting)
        ::operator delete(memory);
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
    BandMemory *self = instance();
    if (!self || self->m_free.empty())
        return ::operator new(size);
    void *memory = self->m_free.back();
    self->m_free.pop_back();
    return memory;
}

void BandMemory::give(void *memory)
{
    BandMemory *self = memory && KeptBlocks > 0 ? instance() : nullptr;
    if (self)
        self->rest(memory);
    else
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
    for (auto memory = m_resting.begin(); memory != end; ++memory) {
        if (m_free.size() < KeptBlocks)
            m_free.push_back(*memory);
        else
            ::operator delete(*memory);
    }
    m_resting.erase(m_resting.begin(), end);
    wakeLater();
}

} // namespace Zavo
