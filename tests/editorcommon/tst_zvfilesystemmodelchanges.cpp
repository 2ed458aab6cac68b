#include "ZvFileSystemModel.h"

#include "FolderFixture.h"

#include <QAbstractItemModelTester>
#include <QListView>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>

#include <ctime>
#include <limits>
#include <memory>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using Zavo::ZvFileSystemModel;

namespace {
const QString a = QStringLiteral("a.xml");
const QString b = QStringLiteral("b.xml");
const QString c = QStringLiteral("c.xml");

QStringList manyNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names << QStringLiteral("stage%1.xml").arg(i);
    return names;
}

/// Whether what the model has fetched below @p index is what the disk holds.
bool isAsOnDisk(const ZvFileSystemModel &model, const QModelIndex &index)
{
    const QString path = model.filePath(index);
    QStringList onDisk = QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    QStringList listed = namesBelow(model, index);
    onDisk.sort();
    listed.sort();
    if (listed != onDisk)
        return false;
    for (int row = 0; row < model.rowCount(index); ++row) {
        const QModelIndex child = model.index(row, 0, index);
        if (model.isDir(child) != QFileInfo(model.filePath(child)).isDir())
            return false;
        if (model.isDir(child) && !model.canFetchMore(child) && !isAsOnDisk(model, child))
            return false;
    }
    return true;
}

QPair<QDateTime, QDateTime> timesOf(const QString &path)
{
    const QFileInfo info(path);
    return {info.fileTime(QFile::FileBirthTime), info.fileTime(QFile::FileMetadataChangeTime)};
}
} // namespace

class tst_ZvFileSystemModelChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneFileAddedIsOneRowInserted();
    void oneFileRemovedIsOneRowRemoved();
    void scatteredChangesComeInRuns();
    void fileReplacedByAFolderChangesItsRow();
    void changedFileIsReportedOnceItsSizeWasRead();
    void updateListsAtOnce();
    void rapidChangesAreReportedTogether();
    void aFolderThatNeverRestsIsStillShown();
    void fetchedSubFolderIsFollowed();
    void subFolderSwappedForAnotherIsListedAnew();
    void vanishedRootIsEmptyAndComesBack();
    void rootComesIntoBeingWithItsFoldersAbove();
    void rootSwappedForAnotherFolder();
    void folderAboveTheRootSwapped();
    void rootReplacedByAFileAndBack();
    void unreadableRootIsEmptyUntilItCanBeRead();
    void selectionAndScrollPositionSurvive();
    void tenThousandFilesAreListedInLinearTime();
    void rootChangedWhileAChangeIsReported();
    void updateAskedForWhileAChangeIsReported();
    void stormOfRandomChanges_data();
    void stormOfRandomChanges();
};

void tst_ZvFileSystemModelChanges::oneFileAddedIsOneRowInserted()
{
    FolderFixture folder;
    folder.write({a, c});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex,int,int)));
    QSignalSpy removed(&model, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    folder.write(b);
    QTRY_COMPARE(inserted.count(), 1);
    QCOMPARE(inserted.at(0).at(0).value<QModelIndex>(), root);
    QCOMPARE(inserted.at(0).at(1).toInt(), 1);
    QCOMPARE(inserted.at(0).at(2).toInt(), 1);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(namesBelow(model, root), QStringList({a, b, c}));
}

void tst_ZvFileSystemModelChanges::oneFileRemovedIsOneRowRemoved()
{
    FolderFixture folder;
    folder.write({a, b, c});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    const QPersistentModelIndex last = model.index(2, 0, root);
    QSignalSpy removed(&model, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    folder.remove(b);
    QTRY_COMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(1).toInt(), 1);
    QCOMPARE(last.row(), 1);
    QCOMPARE(last.data().toString(), c);
}

void tst_ZvFileSystemModelChanges::scatteredChangesComeInRuns()
{
    FolderFixture folder;
    folder.write({a, b, c, QStringLiteral("x.xml"), QStringLiteral("y.xml")});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex,int,int)));
    QSignalSpy removed(&model, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    folder.remove(a);
    folder.remove(b);
    folder.remove(QStringLiteral("y.xml"));
    folder.write({QStringLiteral("d.xml"), QStringLiteral("e.xml"), QStringLiteral("z.xml")});
    model.update();
    QCOMPARE(removed.count(), 2);
    QCOMPARE(inserted.count(), 2);
    const QStringList expected{c, QStringLiteral("d.xml"), QStringLiteral("e.xml"),
                               QStringLiteral("x.xml"), QStringLiteral("z.xml")};
    QCOMPARE(namesBelow(model, root), expected);
}

void tst_ZvFileSystemModelChanges::fileReplacedByAFolderChangesItsRow()
{
    FolderFixture folder;
    folder.write({a, b});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    folder.remove(b);
    folder.mkpath(b);
    QTRY_COMPARE(namesBelow(model, root), QStringList({b, a}));
    QVERIFY(model.isDir(model.index(0, 0, root)));
}

void tst_ZvFileSystemModelChanges::changedFileIsReportedOnceItsSizeWasRead()
{
    FolderFixture folder;
    folder.write({a, b});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QModelIndex root = model.setRootPath(folder.root());
    const QModelIndex size = model.index(1, ZvFileSystemModel::SizeColumn, root);
    QCOMPARE(size.data().toString(), QLocale().formattedDataSize(1));
    QSignalSpy changed(&model, SIGNAL(dataChanged(QModelIndex,QModelIndex,QVector<int>)));
    folder.write(b, QByteArray(4096, 'y'));
    model.update();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<QModelIndex>(), model.index(1, 0, root));
    QCOMPARE(changed.at(0).at(1).value<QModelIndex>(), model.index(1, 3, root));
    QCOMPARE(size.data().toString(), QLocale().formattedDataSize(4096));
    model.update();
    QCOMPARE(changed.count(), 1);
}

void tst_ZvFileSystemModelChanges::updateListsAtOnce()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("sub"));
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    const QModelIndex sub = model.index(0, 0, root);
    model.fetchMore(sub);
    folder.write({a, QStringLiteral("sub/b.xml")});
    model.update();
    QCOMPARE(namesBelow(model, root), QStringList({QStringLiteral("sub"), a}));
    QCOMPARE(namesBelow(model, sub), QStringList(b));
}

void tst_ZvFileSystemModelChanges::rapidChangesAreReportedTogether()
{
    FolderFixture folder;
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex,int,int)));
    folder.write(manyNames(500));
    QTRY_COMPARE(model.rowCount(root), 500);
    QCOMPARE(inserted.count(), 1);
}

void tst_ZvFileSystemModelChanges::aFolderThatNeverRestsIsStillShown()
{
    FolderFixture folder;
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    int written = 0;
    QTimer writer;
    connect(&writer, &QTimer::timeout, &writer, [&] { folder.write(QString::number(written++)); });
    writer.start(10);
    QTRY_VERIFY(model.rowCount(root) > 0);
    QVERIFY(writer.isActive());
}

void tst_ZvFileSystemModelChanges::fetchedSubFolderIsFollowed()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("sub/deep"));
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    const QPersistentModelIndex sub = model.index(0, 0, root);
    model.fetchMore(sub);
    const QPersistentModelIndex deep = model.index(0, 0, sub);
    model.fetchMore(deep);
    folder.write(QStringLiteral("sub/deep/a.xml"));
    QTRY_COMPARE(model.rowCount(deep), 1);
    QVERIFY(QDir(folder.path(QStringLiteral("sub"))).removeRecursively());
    QTRY_COMPARE(model.rowCount(root), 0);
    QVERIFY(!sub.isValid());
    QVERIFY(!deep.isValid());
    folder.mkpath(QStringLiteral("sub"));
    QTRY_COMPARE(model.rowCount(root), 1);
    QVERIFY(model.canFetchMore(model.index(0, 0, root)));
}

void tst_ZvFileSystemModelChanges::subFolderSwappedForAnotherIsListedAnew()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("sub"));
    folder.write({QStringLiteral("sub/a.xml"), QStringLiteral("sub/b.xml")});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    const QPersistentModelIndex sub = model.index(0, 0, root);
    model.fetchMore(sub);
    folder.mkpath(QStringLiteral("other"));
    folder.write({QStringLiteral("other/b.xml"), QStringLiteral("other/c.xml")});
    folder.rename(QStringLiteral("sub"), QStringLiteral("zzz"));
    folder.rename(QStringLiteral("other"), QStringLiteral("sub"));
    QTRY_COMPARE(namesBelow(model, sub), QStringList({b, c}));
    folder.write(QStringLiteral("sub/a.xml"));
    QTRY_COMPARE(namesBelow(model, sub), QStringList({a, b, c}));
}

void tst_ZvFileSystemModelChanges::vanishedRootIsEmptyAndComesBack()
{
    FolderFixture folder;
    folder.write({a, b});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QPersistentModelIndex root = model.setRootPath(folder.root());
    for (int round = 0; round < 2; ++round) {
        folder.removeRoot();
        QTRY_COMPARE(model.rowCount(root), 0);
        QVERIFY(root.isValid());
        folder.mkpath(QString());
        folder.write(c);
        QTRY_COMPARE(namesBelow(model, root), QStringList(c));
        folder.write(a);
        QTRY_COMPARE(namesBelow(model, root), QStringList({a, c}));
    }
    folder.removeRoot();
    folder.mkpath(QString());
    folder.write(b);
    QTRY_COMPARE(namesBelow(model, root), QStringList(b));
}

void tst_ZvFileSystemModelChanges::rootComesIntoBeingWithItsFoldersAbove()
{
    FolderFixture folder;
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.path(QStringLiteral("x/y/z")));
    folder.mkpath(QStringLiteral("x"));
    QTest::qWait(150);
    folder.mkpath(QStringLiteral("x/y/z"));
    folder.write(QStringLiteral("x/y/z/a.xml"));
    QTRY_COMPARE(namesBelow(model, root), QStringList(a));
    folder.write(QStringLiteral("x/y/z/b.xml"));
    QTRY_COMPARE(namesBelow(model, root), QStringList({a, b}));
}

void tst_ZvFileSystemModelChanges::rootSwappedForAnotherFolder()
{
    FolderFixture folder;
    folder.write({a, b});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    const QPersistentModelIndex kept = model.index(1, 0, root);
    QVERIFY(QFile::rename(folder.root(), folder.above() + QStringLiteral("/old")));
    folder.mkpath(QString());
    folder.write({b, c});
    QTRY_COMPARE(namesBelow(model, root), QStringList({b, c}));
    QCOMPARE(kept.row(), 0);
    folder.write(a);
    QTRY_COMPARE(namesBelow(model, root), QStringList({a, b, c}));
}

// The clock of a file system goes by milliseconds: two folders that are made together may have the
// same times, and with one in the other's place only what the disk calls them differs.
void tst_ZvFileSystemModelChanges::folderAboveTheRootSwapped()
{
    FolderFixture folder;
    const QString data = QStringLiteral("data/stage");
    const QString other = QStringLiteral("other/stage");
    for (int attempt = 0; attempt < 200; ++attempt) {
        folder.removeRoot();
        folder.mkpath(data);
        folder.mkpath(other);
        folder.write({data + QStringLiteral("/a.xml"), other + QStringLiteral("/b.xml")});
        if (timesOf(folder.path(data)) == timesOf(folder.path(other)))
            break;
    }
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.path(data));
    folder.rename(QStringLiteral("data"), QStringLiteral("old"));
    folder.rename(QStringLiteral("other"), QStringLiteral("data"));
    QTRY_COMPARE(namesBelow(model, root), QStringList(b));
    folder.write(data + QStringLiteral("/c.xml"));
    QTRY_COMPARE(namesBelow(model, root), QStringList({b, c}));
}

void tst_ZvFileSystemModelChanges::rootReplacedByAFileAndBack()
{
    FolderFixture folder;
    folder.write(a);
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    folder.removeRoot();
    QFile file(folder.root());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QTRY_COMPARE(model.rowCount(root), 0);
    QVERIFY(file.remove());
    folder.mkpath(QString());
    folder.write(b);
    QTRY_COMPARE(namesBelow(model, root), QStringList(b));
}

void tst_ZvFileSystemModelChanges::unreadableRootIsEmptyUntilItCanBeRead()
{
#ifndef Q_OS_LINUX
    QSKIP("Changes the user as Linux does.");
#else
    FolderFixture folder;
    folder.write(a);
    const auto all =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(folder.above(), all));
    // The super-user may read everything, so the model is made as somebody else.
    const bool isSuperUser = ::geteuid() == 0;
    constexpr uid_t nobody = 65534;
    if (isSuperUser)
        QCOMPARE(::setresuid(nobody, nobody, 0), 0);
    else
        QVERIFY(QFile::setPermissions(folder.root(), QFile::WriteOwner));
    ZvFileSystemModel model;
    if (isSuperUser) {
        QCOMPARE(::setresuid(0, 0, 0), 0);
        QVERIFY(QFile::setPermissions(folder.root(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(::setresuid(nobody, nobody, 0), 0);
    }
    const QModelIndex root = model.setRootPath(folder.root());
    const int unreadableRows = model.rowCount(root);
    if (isSuperUser)
        QCOMPARE(::setresuid(0, 0, 0), 0);
    QCOMPARE(unreadableRows, 0);
    QVERIFY(root.isValid());
    QVERIFY(QFile::setPermissions(folder.root(), all));
    QTRY_COMPARE(namesBelow(model, root), QStringList(a));
    folder.write(b);
    QTRY_COMPARE(namesBelow(model, root), QStringList({a, b}));
#endif
}

void tst_ZvFileSystemModelChanges::selectionAndScrollPositionSurvive()
{
    FolderFixture folder;
    folder.write(manyNames(1000));
    ZvFileSystemModel model;
    QListView view;
    view.setModel(&model);
    view.setUniformItemSizes(true);
    view.setRootIndex(model.setRootPath(folder.root()));
    view.resize(240, 180);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QModelIndex chosen = model.index(500, 0, view.rootIndex());
    const QString name = chosen.data().toString();
    view.setCurrentIndex(chosen);
    view.scrollTo(chosen, QAbstractItemView::PositionAtTop);
    const int scrolled = view.verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    folder.write({QStringLiteral("stage999a.xml"), QStringLiteral("z.xml")});
    folder.remove(QStringLiteral("stage998.xml"));
    QTRY_COMPARE(model.rowCount(view.rootIndex()), 1001);
    QCoreApplication::processEvents();
    QCOMPARE(view.verticalScrollBar()->value(), scrolled);
    folder.write(QStringLiteral("a.xml"));
    QTRY_COMPARE(model.rowCount(view.rootIndex()), 1002);
    QCOMPARE(view.currentIndex().data().toString(), name);
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), 1);
    QCOMPARE(view.currentIndex().row(), 501);
}

void tst_ZvFileSystemModelChanges::tenThousandFilesAreListedInLinearTime()
{
    constexpr int count = 10000;
    FolderFixture small;
    FolderFixture big;
    small.write(manyNames(count / 10));
    big.write(manyNames(count));
    // Time of the processor: other programs are at work on the machine, too.
    const auto list = [](const FolderFixture &folder, int expected) {
        std::clock_t best = std::numeric_limits<std::clock_t>::max();
        for (int i = 0; i < 5; ++i) {
            ZvFileSystemModel model;
            const std::clock_t start = std::clock();
            const QModelIndex root = model.setRootPath(folder.root());
            best = qMin(best, std::clock() - start);
            if (model.rowCount(root) != expected)
                return std::clock_t(-1);
        }
        return best;
    };
    const std::clock_t smallTime = list(small, count / 10);
    const std::clock_t bigTime = list(big, count);
    QVERIFY(smallTime > 0 && bigTime > 0);
    // Quadratic would be a hundred times as long.
    QVERIFY2(bigTime < 40 * smallTime,
             qPrintable(QStringLiteral("%1 against %2").arg(bigTime).arg(smallTime)));
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(big.root());
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex,int,int)));
    big.write(QStringLiteral("stage4711a.xml"));
    QTRY_COMPARE(model.rowCount(root), count + 1);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.at(0).at(1).toInt(), 4712);
}

void tst_ZvFileSystemModelChanges::rootChangedWhileAChangeIsReported()
{
    FolderFixture first;
    FolderFixture second;
    first.write({a, c});
    second.write(b);
    ZvFileSystemModel model;
    model.setRootPath(first.root());
    connect(&model, &QAbstractItemModel::rowsInserted, &model,
            [&] { model.setRootPath(second.root()); });
    first.write({QStringLiteral("0.xml"), b, QStringLiteral("d.xml")});
    model.update();
    QCOMPARE(namesBelow(model, model.rootIndex()), QStringList(b));
    second.write(c);
    QTRY_COMPARE(namesBelow(model, model.rootIndex()), QStringList({b, c}));
}

void tst_ZvFileSystemModelChanges::updateAskedForWhileAChangeIsReported()
{
    FolderFixture folder;
    folder.write({a, b});
    ZvFileSystemModel model;
    model.setReadOnly(false);
    const QModelIndex root = model.setRootPath(folder.root());
    bool removed = true;
    connect(&model, &QAbstractItemModel::rowsInserted, &model, [&] {
        model.setNameFilters({QStringLiteral("c*")});
        removed = model.removeRows(0, 1, root);
    });
    folder.write(c);
    model.update();
    QVERIFY(!removed);
    QTRY_COMPARE(namesBelow(model, root), QStringList(c));
    QVERIFY(QFile::exists(folder.path(a)));
}

void tst_ZvFileSystemModelChanges::stormOfRandomChanges_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_ZvFileSystemModelChanges::stormOfRandomChanges()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    FolderFixture folder;
    const QStringList places{QString(), QStringLiteral("d0/"), QStringLiteral("d1/"),
                             QStringLiteral("d1/d2/")};
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    for (int step = 0; step < 400; ++step) {
        const QString place = places.at(random.bounded(places.size()));
        const QString name = folder.path(place + QString::number(random.bounded(12)));
        switch (random.bounded(8)) {
        case 0:
            QDir().mkpath(folder.path(place));
            break;
        case 1:
            QDir(name).removeRecursively();
            QFile::remove(name);
            break;
        case 2:
            QDir().mkpath(name);
            break;
        case 3:
            QFile::rename(name, folder.path(QString::number(random.bounded(12))));
            break;
        case 4:
            if (random.bounded(10) == 0)
                QDir(folder.path(place)).removeRecursively();
            break;
        default: {
            QFile file(name);
            if (file.open(QIODevice::WriteOnly))
                file.write(QByteArray(random.bounded(3000), 'x'));
        }
        }
        if (random.bounded(20) == 0)
            QTest::qWait(random.bounded(30));
        if (random.bounded(40) == 0)
            model.update();
    }
    QTRY_VERIFY(isAsOnDisk(model, root));
    QCOMPARE(model.rootIndex(), root);
}

QTEST_MAIN(tst_ZvFileSystemModelChanges)
#include "tst_zvfilesystemmodelchanges.moc"
