#include "ZvFileSystemModel.h"

#include "FolderFixture.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

#include <memory>

using Zavo::ZvFileSystemModel;

class tst_ZvFileSystemModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyWithoutARoot();
    void rootIsTheSingleTopRow();
    void listsFoldersFirstInNaturalOrder();
    void stageListShowsFilesOfItsSuffixesOnly();
    void exclusionPatternMatchesTheWholeName_data();
    void exclusionPatternMatchesTheWholeName();
    void invalidExclusionPatternHidesNothing();
    void filtersApplyToWhatIsListed();
    void subFolderIsListedWhenFetched();
    void dotsAreNeverRows();
    void linkToTheFolderAboveIsNoEndlessTree();
    void namesAreKeptCharacterForCharacter_data();
    void namesAreKeptCharacterForCharacter();
    void undecodableNameIsNoRow();
    void columnsTellSizeTypeAndDate();
    void iconsAreShared();
    void mimeDataHoldsTheUrls();
    void mimeDataNamesEachFileOnce();
    void mimeDataOfNothingIsNull();
    void headersAndFlags();
    void siblingsAndStrangers();
    void anotherRootReplacesTheRows();
    void missingRootIsEmptyButValid();
    void rootThatIsAFileIsEmpty();
    void relativeRootIsMadeAbsolute();
};

void tst_ZvFileSystemModel::isEmptyWithoutARoot()
{
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.rootPath(), QString());
    QVERIFY(!model.rootIndex().isValid());
    QVERIFY(!model.setRootPath(QString()).isValid());
    QVERIFY(model.isReadOnly());
    model.update();
    QCOMPARE(model.filePath(QModelIndex()), QString());
    QCOMPARE(model.fileName(QModelIndex()), QString());
    QVERIFY(!model.isDir(QModelIndex()));
    QVERIFY(model.icon(QModelIndex()).isNull());
    QCOMPARE(model.fileInfo(QModelIndex()).filePath(), QString());
}

void tst_ZvFileSystemModel::rootIsTheSingleTopRow()
{
    FolderFixture folder;
    folder.write(QStringLiteral("a.xml"));
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    QVERIFY(root.isValid());
    QCOMPARE(model.rootIndex(), root);
    QCOMPARE(model.rootPath(), folder.root());
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.index(0, 0), root);
    QVERIFY(!root.parent().isValid());
    QCOMPARE(root.data().toString(), QStringLiteral("stage"));
    QVERIFY(model.isDir(root));
    QCOMPARE(model.filePath(root), folder.root());
    const QModelIndex file = model.index(0, 0, root);
    QCOMPARE(file.parent(), root);
    QCOMPARE(model.filePath(file), folder.path(QStringLiteral("a.xml")));
    QCOMPARE(model.fileName(file), QStringLiteral("a.xml"));
    QCOMPARE(model.fileInfo(file).size(), qint64(1));
    QVERIFY(!model.isDir(file));
    QVERIFY(!model.hasChildren(file));
    QCOMPARE(model.setRootPath(folder.root() + QStringLiteral("/.//")), root);
}

void tst_ZvFileSystemModel::listsFoldersFirstInNaturalOrder()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("zoo"));
    folder.mkpath(QStringLiteral("Annex"));
    folder.write({QStringLiteral("stage10.xml"), QStringLiteral("Stage2.xml"),
                  QStringLiteral("apple.xml"), QStringLiteral("Banana.xml")});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    const QStringList expected{QStringLiteral("Annex"),      QStringLiteral("zoo"),
                               QStringLiteral("apple.xml"),  QStringLiteral("Banana.xml"),
                               QStringLiteral("Stage2.xml"), QStringLiteral("stage10.xml")};
    QCOMPARE(namesBelow(model, root), expected);
}

void tst_ZvFileSystemModel::stageListShowsFilesOfItsSuffixesOnly()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("folder.xml"));
    folder.write({QStringLiteral("a.xml"), QStringLiteral("b.zstg"), QStringLiteral("C.XML"),
                  QStringLiteral("d.png"), QStringLiteral("xml"), QStringLiteral(".hidden.xml"),
                  QStringLiteral("a._d_.xml"), QStringLiteral("a.xml~")});
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    model.setNameFilters({QStringLiteral("*.xml"), QStringLiteral("*.zstg")});
    model.setFilter(QDir::Files | QDir::NoDotAndDotDot);
    model.setExclusionNamePattern({QStringLiteral(".*\\._d_\\..*")});
    const QModelIndex root = model.setRootPath(folder.root());
    const QStringList expected{QStringLiteral("a.xml"), QStringLiteral("b.zstg"),
                               QStringLiteral("C.XML")};
    QCOMPARE(namesBelow(model, root), expected);
}

void tst_ZvFileSystemModel::exclusionPatternMatchesTheWholeName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("shown");
    QTest::newRow("other") << QStringLiteral("a.xml") << true;
    QTest::newRow("generated") << QStringLiteral("a._d_.xml") << false;
    QTest::newRow("line break") << QStringLiteral("a\nb._d_.xml") << false;
    QTest::newRow("not the second pattern's case") << QStringLiteral("DRAFT") << true;
    QTest::newRow("second pattern") << QStringLiteral("draft") << false;
    QTest::newRow("more than the second pattern") << QStringLiteral("draft.xml") << true;
}

void tst_ZvFileSystemModel::exclusionPatternMatchesTheWholeName()
{
    QFETCH(QString, name);
    QFETCH(bool, shown);
    FolderFixture folder;
    folder.write(name);
    ZvFileSystemModel model;
    model.setExclusionNamePattern({QStringLiteral(".*\\._d_\\..*"), QStringLiteral("draft|x")});
    QCOMPARE(model.rowCount(model.setRootPath(folder.root())), shown ? 1 : 0);
}

void tst_ZvFileSystemModel::invalidExclusionPatternHidesNothing()
{
    FolderFixture folder;
    folder.write({QStringLiteral("a"), QStringLiteral("b")});
    ZvFileSystemModel model;
    QTest::ignoreMessage(QtWarningMsg, "Exclusion pattern is no regular expression: \"(a\"");
    model.setExclusionNamePattern({QStringLiteral("(a"), QStringLiteral("b")});
    QCOMPARE(model.exclusionNamePattern().size(), 2);
    QCOMPARE(namesBelow(model, model.setRootPath(folder.root())), QStringList(QStringLiteral("a")));
}

void tst_ZvFileSystemModel::filtersApplyToWhatIsListed()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("sub"));
    folder.write({QStringLiteral("a.xml"), QStringLiteral("b.txt"), QStringLiteral("sub/c.txt"),
                  QStringLiteral("sub/d.xml")});
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    const QPersistentModelIndex sub = model.index(0, 0, root);
    const QPersistentModelIndex kept = model.index(1, 0, root);
    model.fetchMore(sub);
    QAbstractItemModelTester tester(&model);
    QSignalSpy resets(&model, SIGNAL(modelReset()));

    model.setNameFilters({QStringLiteral("*.xml")});
    QCOMPARE(namesBelow(model, root),
             QStringList({QStringLiteral("sub"), QStringLiteral("a.xml")}));
    QCOMPARE(namesBelow(model, sub), QStringList(QStringLiteral("d.xml")));
    model.setFilter(QDir::Files);
    QCOMPARE(namesBelow(model, root), QStringList(QStringLiteral("a.xml")));
    QVERIFY(!sub.isValid());
    QVERIFY(kept.isValid());
    QCOMPARE(model.filter(), QDir::Filters(QDir::Files));
    QCOMPARE(model.nameFilters(), QStringList(QStringLiteral("*.xml")));
    QCOMPARE(resets.count(), 0);
}

void tst_ZvFileSystemModel::subFolderIsListedWhenFetched()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("sub/deep"));
    folder.mkpath(QStringLiteral("void"));
    folder.write(QStringLiteral("sub/deep/a.xml"));
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    QVERIFY(!model.canFetchMore(root));
    const QModelIndex sub = model.index(0, 0, root);
    QVERIFY(model.canFetchMore(sub));
    QVERIFY(model.hasChildren(sub));
    QCOMPARE(model.rowCount(sub), 0);
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    model.fetchMore(sub);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(model.rowCount(sub), 1);
    QVERIFY(!model.canFetchMore(sub));
    const QModelIndex deep = model.index(0, 0, sub);
    model.fetchMore(deep);
    QCOMPARE(model.filePath(model.index(0, 0, deep)),
             folder.path(QStringLiteral("sub/deep/a.xml")));
    const QModelIndex none = model.index(1, 0, root);
    model.fetchMore(none);
    QVERIFY(!model.hasChildren(none));
    model.fetchMore(QModelIndex());
    QAbstractItemModelTester tester(&model);
}

void tst_ZvFileSystemModel::dotsAreNeverRows()
{
    FolderFixture folder;
    folder.write(QStringLiteral(".hidden"));
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    model.setFilter(QDir::AllEntries | QDir::Hidden);
    QCOMPARE(namesBelow(model, model.setRootPath(folder.root())),
             QStringList(QStringLiteral(".hidden")));
}

void tst_ZvFileSystemModel::linkToTheFolderAboveIsNoEndlessTree()
{
    FolderFixture folder;
    QVERIFY(QFile::link(folder.root(), folder.path(QStringLiteral("again"))));
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    const QModelIndex again = model.index(0, 0, root);
    model.fetchMore(again);
    QCOMPARE(namesBelow(model, again), QStringList(QStringLiteral("again")));
    QVERIFY(model.canFetchMore(model.index(0, 0, again)));
    folder.write(QStringLiteral("b.xml"));
    model.update();
    QCOMPARE(model.rowCount(root), 2);
    QCOMPARE(model.rowCount(again), 2);
}

void tst_ZvFileSystemModel::namesAreKeptCharacterForCharacter_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank at the ends") << QStringLiteral(" a b ");
    QTest::newRow("line break") << QStringLiteral("a\nb\r\n.xml");
    QTest::newRow("control characters") << QStringLiteral("\u0001\u001b[31m\u007f");
    QTest::newRow("backslash") << QStringLiteral("\\a\\..\\b");
    QTest::newRow("percent and hash") << QStringLiteral("100%25#1?x=y&z;.xml");
    QTest::newRow("quotes and wildcards") << QStringLiteral("*\"'[a-z]?`$(x)");
    QTest::newRow("other scripts") << QStringLiteral("駅のコンコース・ホール.xml");
    QTest::newRow("beyond the base plane") << QStringLiteral("🚉.xml");
    QTest::newRow("combining mark") << QStringLiteral("e\u0301.xml");
    QTest::newRow("right to left") << QStringLiteral("\u202emlx.\u0634\u0627\u0634\u0629");
    QTest::newRow("three dots") << QStringLiteral("...");
    QTest::newRow("longest") << QString(255, QLatin1Char('n'));
}

void tst_ZvFileSystemModel::namesAreKeptCharacterForCharacter()
{
    QFETCH(QString, name);
    FolderFixture folder;
    folder.write(name);
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    model.setFilter(QDir::Files | QDir::Hidden);
    const QModelIndex root = model.setRootPath(folder.root());
    const QModelIndex file = model.index(0, 0, root);
    QCOMPARE(file.data().toString(), name);
    QCOMPARE(model.filePath(file), folder.path(name));
    QVERIFY(model.fileInfo(file).exists());
    const std::unique_ptr<QMimeData> data(model.mimeData({file}));
    const QByteArray lines = data->data(QStringLiteral("text/uri-list"));
    QCOMPARE(lines.count('\n'), 1);
    QVERIFY(lines.endsWith("\r\n"));
    QCOMPARE(QUrl::fromEncoded(lines.trimmed()).toLocalFile(), folder.path(name));
}

void tst_ZvFileSystemModel::undecodableNameIsNoRow()
{
    FolderFixture folder;
    folder.write(QStringLiteral("good.xml"));
    const QByteArray path = QFile::encodeName(folder.root()) + "/bad\xff\xfe.xml";
    std::FILE *file = std::fopen(path.constData(), "w");
    QVERIFY(file);
    std::fclose(file);
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.root());
    for (int row = 0; row < model.rowCount(root); ++row)
        QVERIFY(model.fileInfo(model.index(row, 0, root)).exists());
    QCOMPARE(namesBelow(model, root), QStringList(QStringLiteral("good.xml")));
    QCOMPARE(std::remove(path.constData()), 0);
}

void tst_ZvFileSystemModel::columnsTellSizeTypeAndDate()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("sub"));
    folder.write(QStringLiteral("a.xml"), QByteArray(2048, 'x'));
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    QCOMPARE(model.columnCount(), 4);
    QCOMPARE(model.columnCount(root), 4);
    const QModelIndex file = model.index(1, ZvFileSystemModel::NameColumn, root);
    const QModelIndex size = file.siblingAtColumn(ZvFileSystemModel::SizeColumn);
    QCOMPARE(size.data().toString(), QLocale().formattedDataSize(2048));
    QVERIFY(size.data(Qt::TextAlignmentRole).toInt() & Qt::AlignTrailing);
    QCOMPARE(model.index(0, ZvFileSystemModel::SizeColumn, root).data().toString(), QString());
    QVERIFY(!file.siblingAtColumn(ZvFileSystemModel::TypeColumn).data().toString().isEmpty());
    QCOMPARE(file.siblingAtColumn(ZvFileSystemModel::DateColumn).data().toString(),
             QLocale().toString(model.fileInfo(file).lastModified(), QLocale::ShortFormat));
    QCOMPARE(file.data(ZvFileSystemModel::FilePathRole).toString(),
             folder.path(QStringLiteral("a.xml")));
    QCOMPARE(size.data(ZvFileSystemModel::FileNameRole).toString(), QStringLiteral("a.xml"));
    QCOMPARE(file.data(ZvFileSystemModel::FilePermissions).toInt(),
             int(model.fileInfo(file).permissions()));
    QCOMPARE(model.rowCount(size), 0);
    QCOMPARE(model.columnCount(size), 0);
}

void tst_ZvFileSystemModel::iconsAreShared()
{
    FolderFixture folder;
    folder.mkpath(QStringLiteral("sub"));
    folder.write({QStringLiteral("a.xml"), QStringLiteral("b.XML")});
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    const QIcon first = model.icon(model.index(1, 0, root));
    QVERIFY(!first.isNull());
    QCOMPARE(model.icon(model.index(2, 0, root)).cacheKey(), first.cacheKey());
    QVERIFY(model.icon(model.index(0, 0, root)).cacheKey() != first.cacheKey());
    const auto decoration = model.index(1, 0, root).data(Qt::DecorationRole).value<QIcon>();
    QCOMPARE(decoration.cacheKey(), first.cacheKey());
    QVERIFY(!model.index(1, 1, root).data(Qt::DecorationRole).isValid());
}

void tst_ZvFileSystemModel::mimeDataHoldsTheUrls()
{
    FolderFixture folder;
    folder.write({QStringLiteral("a b.xml"), QStringLiteral("駅.zstg")});
    ZvFileSystemModel model;
    const QModelIndex root = model.setRootPath(folder.root());
    QCOMPARE(model.mimeTypes(), QStringList(QStringLiteral("text/uri-list")));
    const std::unique_ptr<QMimeData> data(
        model.mimeData({model.index(0, 0, root), model.index(1, 0, root)}));
    QVERIFY(data->hasFormat(QStringLiteral("text/uri-list")));
    const QByteArray expected =
        QUrl::fromLocalFile(folder.path(QStringLiteral("a b.xml"))).toEncoded() + "\r\n" +
        QUrl::fromLocalFile(folder.path(QStringLiteral("駅.zstg"))).toEncoded() + "\r\n";
    QCOMPARE(data->data(QStringLiteral("text/uri-list")), expected);
}

void tst_ZvFileSystemModel::mimeDataNamesEachFileOnce()
{
    FolderFixture folder;
    folder.write(QStringLiteral("a.xml"));
    ZvFileSystemModel model;
    const QModelIndex file = model.index(0, 0, model.setRootPath(folder.root()));
    const std::unique_ptr<QMimeData> data(
        model.mimeData({file, file.siblingAtColumn(1), file.siblingAtColumn(3)}));
    QCOMPARE(data->urls().size(), 1);
}

void tst_ZvFileSystemModel::mimeDataOfNothingIsNull()
{
    ZvFileSystemModel model;
    QVERIFY(!model.mimeData({}));
    QVERIFY(!model.mimeData({QModelIndex()}));
}

void tst_ZvFileSystemModel::headersAndFlags()
{
    FolderFixture folder;
    folder.write(QStringLiteral("a.xml"));
    ZvFileSystemModel model;
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    QCOMPARE(model.headerData(3, Qt::Horizontal).toString(), QStringLiteral("Date Modified"));
    QVERIFY(!model.headerData(4, Qt::Horizontal).isValid());
    QCOMPARE(model.headerData(2, Qt::Vertical).toInt(), 3);
    const QModelIndex root = model.setRootPath(folder.root());
    const QModelIndex file = model.index(0, 0, root);
    QCOMPARE(model.flags(file), Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                                    Qt::ItemNeverHasChildren);
    QVERIFY(!(model.flags(root) & (Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled)));
    model.setReadOnly(false);
    QVERIFY(model.flags(file) & Qt::ItemIsEditable);
    QVERIFY(!(model.flags(file.siblingAtColumn(1)) & Qt::ItemIsEditable));
    QVERIFY(model.flags(root) & Qt::ItemIsDropEnabled);
    QVERIFY(!(model.flags(root) & Qt::ItemIsEditable));
    QCOMPARE(model.supportedDropActions(), Qt::CopyAction | Qt::MoveAction | Qt::LinkAction);
}

void tst_ZvFileSystemModel::siblingsAndStrangers()
{
    FolderFixture folder;
    folder.write({QStringLiteral("a.xml"), QStringLiteral("b.xml")});
    ZvFileSystemModel model;
    ZvFileSystemModel other;
    const QModelIndex root = model.setRootPath(folder.root());
    const QModelIndex stranger = other.index(0, 0, other.setRootPath(folder.root()));
    const QModelIndex file = model.index(0, 0, root);
    QCOMPARE(file.sibling(1, 2), model.index(1, 2, root));
    QCOMPARE(file.sibling(0, 3), model.index(0, 3, root));
    QVERIFY(!file.sibling(0, 4).isValid());
    QVERIFY(!file.sibling(2, 0).isValid());
    QVERIFY(!file.sibling(0, -1).isValid());
    QVERIFY(!model.sibling(0, 0, QModelIndex()).isValid());
    QCOMPARE(model.filePath(stranger), QString());
    QVERIFY(!model.data(stranger).isValid());
    QVERIFY(!model.mimeData({stranger}));
    QVERIFY(!model.parent(stranger).isValid());
}

void tst_ZvFileSystemModel::anotherRootReplacesTheRows()
{
    FolderFixture first;
    FolderFixture second;
    first.write(QStringLiteral("a.xml"));
    second.write(QStringLiteral("b.xml"));
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QPersistentModelIndex old = model.setRootPath(first.root());
    const QModelIndex root = model.setRootPath(second.root());
    QVERIFY(!old.isValid());
    QCOMPARE(namesBelow(model, root), QStringList(QStringLiteral("b.xml")));
    QVERIFY(!model.setRootPath(QString()).isValid());
    QCOMPARE(model.rowCount(), 0);
}

void tst_ZvFileSystemModel::missingRootIsEmptyButValid()
{
    FolderFixture folder;
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    const QModelIndex root = model.setRootPath(folder.path(QStringLiteral("no/such/folder")));
    QVERIFY(root.isValid());
    QCOMPARE(model.rowCount(root), 0);
    QVERIFY(!model.hasChildren(root));
}

void tst_ZvFileSystemModel::rootThatIsAFileIsEmpty()
{
    FolderFixture folder;
    folder.write(QStringLiteral("a.xml"));
    ZvFileSystemModel model;
    QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowCount(model.setRootPath(folder.path(QStringLiteral("a.xml")))), 0);
}

void tst_ZvFileSystemModel::relativeRootIsMadeAbsolute()
{
    FolderFixture folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.above()));
    ZvFileSystemModel model;
    model.setRootPath(QStringLiteral("./stage/../stage"));
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(model.rootPath(), folder.root());
}

QTEST_MAIN(tst_ZvFileSystemModel)
#include "tst_zvfilesystemmodel.moc"
