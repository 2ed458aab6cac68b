#include "ZvNaturalOrder.h"

namespace Zavo {

namespace {
bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

int sign(qint64 difference)
{
    return (difference > 0) - (difference < 0);
}

/// The digits that count of the number at @p pos, which moves behind the number.
QStringRef takeNumber(const QString &text, int &pos)
{
    while (pos < text.size() && text.at(pos) == QLatin1Char('0'))
        ++pos;
    const int first = pos;
    while (pos < text.size() && isDigit(text.at(pos)))
        ++pos;
    return text.midRef(first, pos - first);
}

int compareNumbers(const QString &left, int &leftPos, const QString &right, int &rightPos)
{
    const QStringRef leftNumber = takeNumber(left, leftPos);
    const QStringRef rightNumber = takeNumber(right, rightPos);
    if (leftNumber.size() != rightNumber.size())
        return sign(leftNumber.size() - rightNumber.size());
    return leftNumber.compare(rightNumber);
}
} // namespace

int ZvNaturalOrder::compare(const QString &left, const QString &right)
{
    int leftPos = 0;
    int rightPos = 0;
    while (leftPos < left.size() && rightPos < right.size()) {
        const QChar leftChar = left.at(leftPos);
        const QChar rightChar = right.at(rightPos);
        if (isDigit(leftChar) && isDigit(rightChar)) {
            const int order = compareNumbers(left, leftPos, right, rightPos);
            if (order != 0)
                return order;
            continue;
        }
        const int order = leftChar.toCaseFolded().unicode() - rightChar.toCaseFolded().unicode();
        if (order != 0)
            return order;
        ++leftPos;
        ++rightPos;
    }
    const int rest = sign((left.size() - leftPos) - (right.size() - rightPos));
    return rest != 0 ? rest : left.compare(right);
}

} // namespace Zavo
