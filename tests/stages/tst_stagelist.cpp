#include "ListDrag.h"
#include "MessageBoxAnswer.h"
#include "TemporaryDataFolder.h"

#include "ZvEditorCommon.h"
#include "stages/StageItemDelegate.h"
#include "stages/ZvScheduleStageListView.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace Zavo;
using ZavoTest::dragOutOf;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::TemporaryDataFolder;

namespace {

constexpr int patienceMs = 20000; // for a disk that others keep busy

QString numbered(int number)
{
    return QStringLiteral("stage %1.xml").arg(number, 5, 10, QLatin1Char('0'));
}

} // namespace

/// The list in a shown window while files of its folder come, go and get other names.
class tst_StageList : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<MessageBoxAnswer> m_noBox;
    std::unique_ptr<ZvScheduleStageListView> m_list;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<QSignalSpy> m_resets;
    std::unique_ptr<QSignalSpy> m_inserted;
    std::unique_ptr<QSignalSpy> m_removed;

    void write(const QString &name) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QString path(const QString &name) const
    {
        return m_folder->filePath(QStringLiteral("stage/") + name);
    }
    void show(int stageCount, bool checked = true)
    {
        m_folder->makeFolder(QStringLiteral("stage"));
        for (int i = 0; i < stageCount; ++i)
            write(numbered(i));
        m_list = std::make_unique<ZvScheduleStageListView>();
        m_list->resize(260, 300);
        m_list->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_list.get()));
        QAbstractItemModel *model = m_list->model();
        if (checked)
            m_tester = std::make_unique<QAbstractItemModelTester>(model);
        m_resets = std::make_unique<QSignalSpy>(model, SIGNAL(modelReset()));
        m_inserted = std::make_unique<QSignalSpy>(model, SIGNAL(rowsInserted(QModelIndex,int,int)));
        m_removed = std::make_unique<QSignalSpy>(model, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    }
    int count() const { return m_list->model()->rowCount(m_list->rootIndex()); }
    QModelIndex row(int number) const
    {
        return m_list->model()->index(number, 0, m_list->rootIndex());
    }
    QStringList names() const
    {
        QStringList result;
        for (int i = 0; i < count(); ++i)
            result.append(row(i).data().toString());
        return result;
    }
    QModelIndex stage(const QString &name) const { return row(names().indexOf(name)); }
    QStringList selected() const
    {
        QStringList result;
        const QModelIndexList indexes = m_list->selectionModel()->selectedIndexes();
        for (const QModelIndex &index : indexes)
            result.append(index.data().toString());
        result.sort();
        return result;
    }
    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, modifiers,
                          m_list->visualRect(stage(name)).center());
    }
    QScrollBar *scrollBar() const { return m_list->horizontalScrollBar(); }

private Q_SLOTS:
    void init();
    void cleanup();

    void addedFileIsOneRow();
    void removedFileIsOneRow();
    void renamedFileKeepsTheSelectionOfOthers();
    void selectedFileThatGoesIsNotSelected();
    void generatedStagesNeverAppear();
    void filesMoveInAndOutOfSubFolders();
    void folderComesIntoBeing();
    void folderGoesAndComesBack();
    void everyRandomChangeIsShown();
    void tenThousandStagesKeepTheirPlaces();
    void longNamesWrap();
    void sizesFollowTheFontAndTheIcons();
    void dragsWhatIsSelected();
    void dragsWithNames();
};

void tst_StageList::init()
{
    m_noBox = std::make_unique<MessageBoxAnswer>();
    m_folder = std::make_unique<TemporaryDataFolder>();
}

void tst_StageList::cleanup()
{
    m_tester.reset();
    m_resets.reset();
    m_inserted.reset();
    m_removed.reset();
    m_list.reset();
    m_folder.reset();
    m_noBox.reset();
}

void tst_StageList::addedFileIsOneRow()
{
    show(100);
    scrollBar()->setValue(3);
    const int place = scrollBar()->value();
    QVERIFY(place > 0);
    const QString first = m_list->indexAt(QPoint(20, 5)).data().toString();
    click(first);
    write(numbered(99) + QStringLiteral(".xml"));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 101, patienceMs);
    QCOMPARE(m_inserted->count(), 1);
    QCOMPARE(m_inserted->at(0).at(1), m_inserted->at(0).at(2));
    QCOMPARE(m_removed->count(), 0);
    QCOMPARE(m_resets->count(), 0);
    QCOMPARE(selected(), QStringList(first));
    m_list->grab();
    QCOMPARE(scrollBar()->value(), place);
    QCOMPARE(m_list->indexAt(QPoint(20, 5)).data().toString(), first);
}

void tst_StageList::removedFileIsOneRow()
{
    show(10);
    click(numbered(7));
    QVERIFY(QFile::remove(path(numbered(3))));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 9, patienceMs);
    QCOMPARE(m_removed->count(), 1);
    QCOMPARE(m_removed->at(0).at(1).toInt(), 3);
    QCOMPARE(m_inserted->count(), 0);
    QCOMPARE(m_resets->count(), 0);
    QCOMPARE(selected(), QStringList(numbered(7)));
    QCOMPARE(m_list->currentIndex().row(), 6);
}

void tst_StageList::renamedFileKeepsTheSelectionOfOthers()
{
    show(10);
    click(numbered(2));
    click(numbered(7), Qt::ControlModifier);
    QVERIFY(QFile::rename(path(numbered(4)), path(QStringLiteral("aaa.zstg"))));
    QTRY_COMPARE_WITH_TIMEOUT(names().first(), QStringLiteral("aaa.zstg"), patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(count(), 10, patienceMs);
    QCOMPARE(selected(), QStringList({numbered(2), numbered(7)}));
    QCOMPARE(m_resets->count(), 0);
    // Out of what is listed, and back.
    QVERIFY(QFile::rename(path(numbered(5)), path(QStringLiteral("five.txt"))));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 9, patienceMs);
    QVERIFY(QFile::rename(path(QStringLiteral("five.txt")), path(numbered(5))));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 10, patienceMs);
    QCOMPARE(selected(), QStringList({numbered(2), numbered(7)}));
}

void tst_StageList::selectedFileThatGoesIsNotSelected()
{
    show(5);
    click(numbered(1));
    click(numbered(3), Qt::ControlModifier);
    QVERIFY(QFile::remove(path(numbered(3))));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 4, patienceMs);
    QCOMPARE(selected(), QStringList(numbered(1)));
}

void tst_StageList::generatedStagesNeverAppear()
{
    show(3);
    m_list->setCurrentIndex(row(1));
    QSignalSpy resets(m_list.get(), SIGNAL(requestResetTimeTable(QString,QList<ZvTime>)));
    const QString generated = QStringLiteral("stage 00001._d_.xml");
    for (int run = 1; run <= 2; ++run) {
        QVERIFY(QMetaObject::invokeMethod(
            m_list.get(), "autoSwitchStageRequested",
            Q_ARG(int, 300), Q_ARG(QTime, QTime(0, 0)), Q_ARG(QTime, QTime(1, 0))));
        QCOMPARE(resets.count(), run);
        QVERIFY(QFile::exists(path(generated)));
    }
    // The next change shows that the one before was seen.
    write(numbered(9));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 4, patienceMs);
    QCOMPARE(m_inserted->count(), 1);
    QCOMPARE(names(), QStringList({numbered(0), numbered(1), numbered(2), numbered(9)}));
    QCOMPARE(selected(), QStringList(numbered(1)));
    ZvScheduleStageListView afresh;
    QCOMPARE(afresh.model()->rowCount(afresh.rootIndex()), 4);
}

void tst_StageList::filesMoveInAndOutOfSubFolders()
{
    show(4);
    m_folder->makeFolder(QStringLiteral("stage/sub/deeper.xml"));
    QVERIFY(QFile::rename(path(numbered(2)), path(QStringLiteral("sub/") + numbered(2))));
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList({numbered(0), numbered(1), numbered(3)}),
                              patienceMs);
    QVERIFY(QFile::rename(path(QStringLiteral("sub/") + numbered(2)), path(numbered(2))));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 4, patienceMs);
    QCOMPARE(m_inserted->count(), 1);
    QCOMPARE(m_resets->count(), 0);
    QVERIFY(QDir(path(QStringLiteral("sub"))).removeRecursively());
    write(numbered(8));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 5, patienceMs);
}

void tst_StageList::folderComesIntoBeing()
{
    m_list = std::make_unique<ZvScheduleStageListView>();
    m_list->show();
    QCOMPARE(count(), 0);
    m_folder->makeFolder(QStringLiteral("stage"));
    write(numbered(0));
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList(numbered(0)), patienceMs);
}

void tst_StageList::folderGoesAndComesBack()
{
    show(5);
    const QString aside = m_folder->filePath(QStringLiteral("aside"));
    QVERIFY(QFile::rename(m_folder->stageFolder(), aside));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 0, patienceMs);
    QVERIFY(QFile::rename(aside, m_folder->stageFolder()));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 5, patienceMs);
    QCOMPARE(m_resets->count(), 0);
    write(numbered(5));
    QTRY_COMPARE_WITH_TIMEOUT(count(), 6, patienceMs);
}

void tst_StageList::everyRandomChangeIsShown()
{
    show(30);
    QRandomGenerator random(7);
    const auto any = [&random] { return numbered(random.bounded(60)); };
    for (int change = 0; change < 200; ++change) {
        switch (random.bounded(3)) {
        case 0:
            write(any());
            break;
        case 1:
            QFile::remove(path(any()));
            break;
        default:
            QFile::rename(path(any()), path(any()));
            break;
        }
        if (random.bounded(4) == 0)
            m_list->setCurrentIndex(row(random.bounded(qMax(1, count()))));
        if (random.bounded(10) == 0)
            QTest::qWait(20);
    }
    QStringList onDisk = QDir(m_folder->stageFolder()).entryList({QStringLiteral("*.xml")});
    onDisk.sort();
    QTRY_COMPARE_WITH_TIMEOUT(names(), onDisk, patienceMs);
    QCOMPARE(m_resets->count(), 0);
}

void tst_StageList::tenThousandStagesKeepTheirPlaces()
{
    constexpr int many = 10000;
    show(many, false);
    QCOMPARE(count(), many);
    scrollBar()->setValue(scrollBar()->maximum() / 2);
    const int place = scrollBar()->value();
    QVERIFY(place > 0);
    const QString seen = m_list->indexAt(QPoint(20, 5)).data().toString();
    QVERIFY(!seen.isEmpty());
    click(seen);
    write(QStringLiteral("zzz.xml"));
    QTRY_COMPARE_WITH_TIMEOUT(count(), many + 1, patienceMs);
    QVERIFY(QFile::remove(path(QStringLiteral("zzz.xml"))));
    QTRY_COMPARE_WITH_TIMEOUT(count(), many, patienceMs);
    QVERIFY(QFile::rename(path(numbered(many - 1)), path(numbered(many))));
    QTRY_COMPARE_WITH_TIMEOUT(names().last(), numbered(many), patienceMs);
    QCOMPARE(m_inserted->count(), 2);
    QCOMPARE(m_removed->count(), 2);
    QCOMPARE(m_resets->count(), 0);
    m_list->grab();
    QCOMPARE(scrollBar()->value(), place);
    QCOMPARE(m_list->indexAt(QPoint(20, 5)).data().toString(), seen);
    QCOMPARE(selected(), QStringList(seen));
    m_list->selectAll();
    const auto drag = dragOutOf(m_list.get(), m_list->indexAt(QPoint(20, 5)));
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->urls().size(), many);
}

void tst_StageList::longNamesWrap()
{
    show(1);
    const QString name = QStringLiteral("a name of many words that no dock is wide enough for "
                                        "in one line of a list.xml");
    write(name);
    QTRY_COMPARE_WITH_TIMEOUT(count(), 2, patienceMs);
    m_list->grab();
    const QRect usual = m_list->visualRect(stage(numbered(0)));
    const QRect wrapped = m_list->visualRect(stage(name));
    QVERIFY(wrapped.height() >= 2 * usual.height() - 4);
    QVERIFY(wrapped.width() <= m_list->viewport()->width());
    // In a list that is wide enough it is one line.
    m_list->resize(1200, 300);
    m_list->grab();
    QCOMPARE(m_list->visualRect(stage(name)).height(), usual.height());
    m_list->resize(260, 300);
    m_list->grab();
    QCOMPARE(m_list->visualRect(stage(name)).height(), wrapped.height());
}

void tst_StageList::sizesFollowTheFontAndTheIcons()
{
    show(3);
    const QSize before = m_list->visualRect(row(0)).size();
    QFont font = m_list->font();
    font.setPointSize(font.pointSize() * 2);
    m_list->setFont(font);
    m_list->grab();
    const QSize larger = m_list->visualRect(row(0)).size();
    QVERIFY(larger.width() > before.width() && larger.height() > before.height());
    m_list->setIconSize({64, 64});
    m_list->grab();
    QVERIFY(m_list->visualRect(row(0)).height() >= 64);
    // What is remembered is what would be measured.
    const StageItemDelegate remembering;
    const QStyledItemDelegate plain;
    QStyleOptionViewItem option;
    option.initFrom(m_list.get());
    option.widget = m_list.get();
    option.font = font;
    option.decorationSize = QSize(16, 16);
    option.features = QStyleOptionViewItem::WrapText;
    for (const int width : {30, 100, 250, 1000, 250, 100}) {
        option.rect = QRect(0, 0, width, 300);
        for (int i = 0; i < count(); ++i)
            QCOMPARE(remembering.sizeHint(option, row(i)), plain.sizeHint(option, row(i)));
    }
}

void tst_StageList::dragsWhatIsSelected()
{
    show(4);
    click(numbered(1));
    click(numbered(3), Qt::ControlModifier);
    const auto drag = dragOutOf(m_list.get(), stage(numbered(3)));
    QVERIFY(drag);
    QVERIFY(drag->mimeData()->hasFormat(QStringLiteral("text/uri-list")));
    QVERIFY(ZvScheduleStageListView::keepStageNames(drag->mimeData()));
    QStringList kept = ZvScheduleStageListView::keptStageNames(drag->mimeData());
    kept.sort();
    QCOMPARE(kept, QStringList({numbered(1), numbered(3)}));
    // Pressing elsewhere starts a selection of its own.
    const auto other = dragOutOf(m_list.get(), stage(numbered(0)));
    QVERIFY(other);
    QCOMPARE(other->mimeData()->urls(), {QUrl::fromLocalFile(path(numbered(0)))});
}

void tst_StageList::dragsWithNames()
{
    show(0);
    const QStringList odd{QString::fromUtf8("駅 案内.xml"), QStringLiteral("50% + 1.xml"),
                          QStringLiteral("a;b&c.zstg")};
    for (const QString &name : odd)
        write(name);
    QTRY_COMPARE_WITH_TIMEOUT(count(), odd.size(), patienceMs);
    m_list->grab();
    for (const QString &name : odd) {
        const auto drag = dragOutOf(m_list.get(), stage(name));
        QVERIFY(drag);
        QVERIFY(ZvScheduleStageListView::keepStageNames(drag->mimeData()));
        QCOMPARE(ZvScheduleStageListView::keptStageNames(drag->mimeData()), QStringList(name));
    }
}

QTEST_MAIN(tst_StageList)
#include "tst_stagelist.moc"
