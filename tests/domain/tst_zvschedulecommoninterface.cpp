#include "domain/SelectionType.h"
#include "domain/ZvScheduleCommonInterface.h"

#include <QLabel>
#include <QtTest>

using namespace Zavo;

namespace {

/// A widget with a list of words, of which some are selected.
class WordList final : public QWidget, public ZvScheduleCommonInterface
{
public:
    SelectedType hasSelectedItems() const override
    {
        SelectedType possible = SelectedSelectAll;
        if (m_selected > 0)
            possible |= SelectedCopy | SelectedCut | SelectedDelete | SelectedDeselectAll;
        possible.setFlag(SelectedSelectAll, m_selected == 0 || m_selected < m_count);
        return possible;
    }
    void deleteSelectedItems() override { m_count -= std::exchange(m_selected, 0); }
    bool copySelectedItems() override { return (m_copied = m_selected) > 0; }
    bool cutSelectedItems() override
    {
        const bool copied = copySelectedItems();
        deleteSelectedItems();
        return copied;
    }
    bool isPastingPossible() const override { return m_copied > 0; }
    bool pasteItems() override
    {
        m_count += m_copied;
        return isPastingPossible();
    }
    void selectAllItems() override { m_selected = m_count; }
    void deselectAllItems() override { m_selected = 0; }

    int m_count = 3;
    int m_selected = 0;
    int m_copied = 0;
};

} // namespace

class tst_ZvScheduleCommonInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flagsHaveTheirNumbers();
    void isReachedThroughTheWidget();
    void plainWidgetHasNoInterface();
    void selectionTypesHaveTheirNumbers();
};

void tst_ZvScheduleCommonInterface::flagsHaveTheirNumbers()
{
    using Interface = ZvScheduleCommonInterface;
    QCOMPARE(int(Interface::SelectedCopy), 1);
    QCOMPARE(int(Interface::SelectedCut), 2);
    QCOMPARE(int(Interface::SelectedDelete), 4);
    QCOMPARE(int(Interface::SelectedSelectAll), 8);
    QCOMPARE(int(Interface::SelectedDeselectAll), 16);
    QCOMPARE(int(Interface::SelectedType()), 0);
}

void tst_ZvScheduleCommonInterface::isReachedThroughTheWidget()
{
    WordList list;
    QWidget *widget = &list;
    auto *editable = dynamic_cast<ZvScheduleCommonInterface *>(widget);
    QVERIFY(editable);
    QCOMPARE(int(editable->hasSelectedItems()), 8);
    editable->selectAllItems();
    QCOMPARE(int(editable->hasSelectedItems()), 23);
    list.m_selected = 2;
    QCOMPARE(int(editable->hasSelectedItems()), 31);
    QVERIFY(!editable->isPastingPossible());
    QVERIFY(editable->cutSelectedItems());
    QVERIFY(editable->pasteItems());
    QCOMPARE(list.m_count, 3);
}

void tst_ZvScheduleCommonInterface::plainWidgetHasNoInterface()
{
    const QScopedPointer<QWidget> widget(new QLabel);
    QVERIFY(!dynamic_cast<ZvScheduleCommonInterface *>(widget.data()));
}

void tst_ZvScheduleCommonInterface::selectionTypesHaveTheirNumbers()
{
    QCOMPARE(int(SelectionType::Calendar), 1);
    QCOMPARE(int(SelectionType::Week), 2);
    QCOMPARE(int(SelectionType::DefaultSchedule), 3);
}

QTEST_MAIN(tst_ZvScheduleCommonInterface)
#include "tst_zvschedulecommoninterface.moc"
