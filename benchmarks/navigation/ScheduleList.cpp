#include "ScheduleList.h"

#include "../Bench.h"
#include "ZvChannel.h"
#include "domain/ScheduleText.h"
#include "navigation/ZvScheduleListWidget.h"

#include <QCoreApplication>
#include <QStandardItemModel>

#include <random>

using namespace Zavo;

namespace {

constexpr int manyRows = 10000;
constexpr int fewRows = 100;
constexpr int changes = 2000;
constexpr double fillGoal = 2.5;
// The work is the same; the rest is what lies farther apart in memory.
constexpr double changeGoal = 1.5;
const QDate firstDate(2000, 1, 1);

QDate dateOf(int row)
{
    return firstDate.addDays(row);
}

ZvChannel channelOf(int rows)
{
    ZvChannel channel(QStringLiteral("channel1.xml"));
    for (int row = 0; row < rows; ++row)
        channel.insertSchedule(ZvScheduleBasicInfo(dateOf(row)).toSchedule());
    return channel;
}

QStringList textsOf(int rows)
{
    QStringList texts;
    for (int row = 0; row < rows; ++row)
        texts.append(dateText(dateOf(row)));
    return texts;
}

/// The same rows in a model that nothing shows.
void fillBare(QStandardItemModel *model, const QStringList &texts)
{
    for (int row = 0; row < texts.size(); ++row) {
        auto *name = new QStandardItem(texts.at(row));
        name->setData(dateOf(row));
        name->setCheckable(true);
        auto *type = new QStandardItem(QStringLiteral("date"));
        type->setData(dateOf(row));
        auto *count = new QStandardItem(QString::number(0));
        count->setData(0);
        model->appendRow({name, type, count});
    }
}

/// A list on show.
class ShownList final
{
public:
    explicit ShownList(int rows)
        : m_rows(rows)
        , m_channel(channelOf(rows))
    {
        m_list.resize(330, 600);
        m_list.show();
        QCoreApplication::processEvents();
    }

    double fill()
    {
        m_list.setCurrentChannel(nullptr);
        QCoreApplication::processEvents();
        return Bench::measureProcessor([this] {
            m_list.setCurrentChannel(&m_channel);
            QCoreApplication::processEvents();
        });
    }

    /// Changes counts all over the list.
    double change()
    {
        std::minstd_rand random;
        std::uniform_int_distribution<int> anyRow(0, m_rows - 1);
        return Bench::measureProcessor([&] {
            for (int i = 0; i < changes; ++i)
                m_list.onScheduleStageCountChanged(ZvScheduleBasicInfo(dateOf(anyRow(random))),
                                                   ++m_count);
        });
    }

private:
    int m_rows = 0;
    int m_count = 0;
    ZvChannel m_channel;
    ZvScheduleListWidget m_list;
};

} // namespace

void benchScheduleList(Bench::Table *table)
{
    ShownList many(manyRows);
    const QStringList texts = textsOf(manyRows);
    table->addFigures(
        {QStringLiteral("fill a shown list / a bare model"), manyRows, fillGoal},
        [&texts] {
            QStandardItemModel model;
            return Bench::measureProcessor([&] { fillBare(&model, texts); });
        },
        [&many] { return many.fill(); });

    ShownList few(fewRows);
    few.fill();
    table->addFigures(
        {QStringLiteral("change a count in many rows / in 100"), manyRows, changeGoal},
        [&few] { return few.change(); }, [&many] { return many.change(); });
}
