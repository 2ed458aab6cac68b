#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

namespace ZavoFuzz {

/// The bytes of one input, taken one after the other. Behind the end all are 0.
class FuzzInput final
{
public:
    FuzzInput(const uint8_t *bytes, size_t size)
        : m_bytes(bytes)
        , m_size(size)
    {
    }

    bool isEmpty() const { return m_place >= m_size; }

    int byte() { return isEmpty() ? 0 : m_bytes[m_place++]; }

    /// From 0 to 65535.
    int word()
    {
        const int high = byte();
        return high * 256 + byte();
    }

    /// From 0 to @p count less one, which is at most 256.
    int below(int count) { return byte() % count; }

    bool flag() { return (byte() & 1) != 0; }

    /// All that is left.
    QByteArray rest()
    {
        const QByteArray bytes(reinterpret_cast<const char *>(m_bytes) + m_place,
                               static_cast<int>(m_size - m_place));
        m_place = m_size;
        return bytes;
    }

private:
    const uint8_t *m_bytes;
    size_t m_size;
    size_t m_place = 0;
};

} // namespace ZavoFuzz
