#pragma once

#include <QObject>
#include <QString>

#include <unordered_map>

namespace Zavo {

class ZvTimeTableTimeItemLabel;

/// Keeps the labels of bands that went for bands that come: at a switch of schedule most of them
/// bear the same texts again.
///
/// One pool for the application, which dies with it. Labels in the pool have neither parent nor
/// scene, and the pool owns them.
class TimeTableLabelPool final : public QObject
{
    Q_OBJECT

public:
    ~TimeTableLabelPool() override;

    /// A label with @p text, without a parent; the caller takes it over.
    static ZvTimeTableTimeItemLabel *take(const QString &text);
    /// The same, but a label that is kept with another text comes with that.
    static ZvTimeTableTimeItemLabel *takeAny(const QString &text);
    /// A label that is kept with @p text, or null.
    static ZvTimeTableTimeItemLabel *takeEqual(const QString &text);
    /// Takes @p label over, out of its parent and its scene. Without an application, or when enough
    /// labels are kept, it is deleted.
    static void give(ZvTimeTableTimeItemLabel *label);
    /// Deletes what is kept. A label remembers every view that it was painted in, so that it would
    /// grow with the pages that come and go.
    static void empty();

private:
    explicit TimeTableLabelPool(QObject *parent);

    static TimeTableLabelPool *instance();
    ZvTimeTableTimeItemLabel *takeKept(const QString &text, bool orAny);
    void keep(ZvTimeTableTimeItemLabel *label);
    void deleteKept();

    /// Of the standard library: any one of its elements is found at once, however many went.
    std::unordered_multimap<QString, ZvTimeTableTimeItemLabel *> m_labels;
};

} // namespace Zavo
