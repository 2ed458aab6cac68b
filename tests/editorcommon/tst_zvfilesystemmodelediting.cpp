#include "ZvFileSystemModel.h"

#include "FolderFixture.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

#include <limits>
#include <memory>

#include <sys/stat.h>

using Zavo::ZvFileSystemModel;

namespace {
const QString a = QStringLiteral("a.xml");
const QString b = QStringLiteral("b.xml");
const QString c = QStringLiteral("c.xml");
} // namespace

class tst_ZvFileSystemModelEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void readOnlyModelRefusesEverything();
    void renameMovesTheRow_data();
    void renameMovesTheRow();
    void renameIsRefused_data();
    void renameIsRefused();
    void renameOfTheRootIsRefused();
    void renameToAHiddenNameTakesTheRowAway();
    void renamedFolderIsStillFollowed();
    void removeRowsDeletesTheFiles();
    void removeRowsKeepsWhatCannotGo();
    void removeRowsTakesTheLinkNotTheTarget();
    void removeRowsOutOfRangeIsRefused();
    void dropCopiesMovesAndLinks_data();
    void dropCopiesMovesAndLinks();
    void dropOverwritesNothing();
    void dropOfStrangeThingsIsRefused();
    void dropIntoASubFolder();

private:
    std::unique_ptr<FolderFixture> m_folder;
    std::unique_ptr<ZvFileSystemModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    QModelIndex m_root;
};

void tst_ZvFileSystemModelEditing::init()
{
    m_folder = std::make_unique<FolderFixture>();
    m_folder->write({a, b, c});
    m_model = std::make_unique<ZvFileSystemModel>();
    m_model->setReadOnly(false);
    m_root = m_model->setRootPath(m_folder->root());
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model.get());
}

void tst_ZvFileSystemModelEditing::cleanup()
{
    m_tester.reset();
    m_model.reset();
    m_folder.reset();
}

void tst_ZvFileSystemModelEditing::readOnlyModelRefusesEverything()
{
    m_model->setReadOnly(true);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/etc/hostname"))});
    QVERIFY(!m_model->setData(m_model->index(0, 0, m_root), QStringLiteral("z.xml")));
    QVERIFY(!m_model->removeRows(0, 1, m_root));
    QVERIFY(!m_model->dropMimeData(&data, Qt::CopyAction, -1, -1, m_root));
    QCOMPARE(QDir(m_folder->root()).entryList(QDir::Files), QStringList({a, b, c}));
}

void tst_ZvFileSystemModelEditing::renameMovesTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("newRow");
    QTest::newRow("stays") << 0 << QStringLiteral("aa.xml") << 0;
    QTest::newRow("down by one") << 0 << QStringLiteral("bb.xml") << 1;
    QTest::newRow("to the end") << 0 << QStringLiteral("z.xml") << 2;
    QTest::newRow("up") << 2 << QStringLiteral("0.xml") << 0;
    QTest::newRow("up by one") << 2 << QStringLiteral("aa.xml") << 1;
    QTest::newRow("case only") << 1 << QStringLiteral("B.xml") << 1;
    QTest::newRow("nothing") << 1 << b << 1;
    QTest::newRow("blanks at the ends") << 1 << QStringLiteral(" b ") << 0;
}

void tst_ZvFileSystemModelEditing::renameMovesTheRow()
{
    QFETCH(int, row);
    QFETCH(QString, name);
    QFETCH(int, newRow);
    const QPersistentModelIndex index = m_model->index(row, 0, m_root);
    const QString oldName = index.data().toString();
    QSignalSpy removed(m_model.get(), SIGNAL(rowsRemoved(QModelIndex,int,int)));
    QVERIFY(m_model->setData(index, name));
    QCOMPARE(index.row(), newRow);
    QCOMPARE(index.data().toString(), name);
    QVERIFY(QFile::exists(m_folder->path(name)));
    QCOMPARE(QFile::exists(m_folder->path(oldName)), name == oldName);
    QTest::qWait(150);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(m_model->rowCount(m_root), 3);
    QCOMPARE(index.row(), newRow);
}

void tst_ZvFileSystemModelEditing::renameIsRefused_data()
{
    QTest::addColumn<QVariant>("name");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    const auto row = [](const char *tag, const QVariant &name, int column = 0,
                        int role = Qt::EditRole) { QTest::newRow(tag) << name << column << role; };
    row("empty", QString());
    row("taken", b);
    row("dot", QStringLiteral("."));
    row("dots", QStringLiteral(".."));
    row("out of the folder", QStringLiteral("../x.xml"));
    row("absolute", QStringLiteral("/tmp/x.xml"));
    row("zero character", QString(QStringLiteral("x") + QChar::Null + QStringLiteral("y")));
    row("too long", QString(256, QLatin1Char('x')));
    row("no text", QVariant(QSize(1, 1)));
    row("other column", QStringLiteral("x.xml"), 1);
    row("other role", QStringLiteral("x.xml"), 0, Qt::DisplayRole);
}

void tst_ZvFileSystemModelEditing::renameIsRefused()
{
    QFETCH(QVariant, name);
    QFETCH(int, column);
    QFETCH(int, role);
    QVERIFY(!m_model->setData(m_model->index(0, column, m_root), name, role));
    QCOMPARE(QDir(m_folder->root()).entryList(QDir::Files), QStringList({a, b, c}));
    QCOMPARE(namesBelow(*m_model, m_root), QStringList({a, b, c}));
}

void tst_ZvFileSystemModelEditing::renameOfTheRootIsRefused()
{
    QVERIFY(!m_model->setData(m_root, QStringLiteral("other")));
    QVERIFY(!m_model->setData(QModelIndex(), QStringLiteral("other")));
    QVERIFY(QFile::exists(m_folder->root()));
}

void tst_ZvFileSystemModelEditing::renameToAHiddenNameTakesTheRowAway()
{
    m_model->setNameFilters({QStringLiteral("*.xml")});
    QVERIFY(m_model->setData(m_model->index(0, 0, m_root), QStringLiteral("a.txt")));
    QCOMPARE(namesBelow(*m_model, m_root), QStringList({b, c}));
}

void tst_ZvFileSystemModelEditing::renamedFolderIsStillFollowed()
{
    m_tester.reset();
    m_folder->mkpath(QStringLiteral("sub/deep"));
    m_model->update();
    const QPersistentModelIndex sub = m_model->index(0, 0, m_root);
    m_model->fetchMore(sub);
    const QPersistentModelIndex deep = m_model->index(0, 0, sub);
    m_model->fetchMore(deep);
    QVERIFY(m_model->setData(sub, QStringLiteral("renamed")));
    QCOMPARE(m_model->filePath(deep), m_folder->path(QStringLiteral("renamed/deep")));
    m_folder->write(QStringLiteral("renamed/deep/a.xml"));
    QTRY_COMPARE(m_model->rowCount(deep), 1);
}

void tst_ZvFileSystemModelEditing::removeRowsDeletesTheFiles()
{
    m_folder->mkpath(QStringLiteral("sub"));
    m_model->update();
    QVERIFY(m_model->removeRows(0, 3, m_root));
    QCOMPARE(namesBelow(*m_model, m_root), QStringList(c));
    QCOMPARE(QDir(m_folder->root()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(c));
}

void tst_ZvFileSystemModelEditing::removeRowsKeepsWhatCannotGo()
{
    m_folder->mkpath(QStringLiteral("full"));
    m_folder->write(QStringLiteral("full/a.xml"));
    m_model->update();
    QVERIFY(!m_model->removeRows(0, 2, m_root));
    QCOMPARE(namesBelow(*m_model, m_root), QStringList({QStringLiteral("full"), b, c}));
    QVERIFY(QFile::exists(m_folder->path(QStringLiteral("full/a.xml"))));
    QVERIFY(!QFile::exists(m_folder->path(a)));
}

void tst_ZvFileSystemModelEditing::removeRowsTakesTheLinkNotTheTarget()
{
    QVERIFY(QDir().mkpath(m_folder->above() + QStringLiteral("/target")));
    QVERIFY(QFile::link(m_folder->above() + QStringLiteral("/target"),
                        m_folder->path(QStringLiteral("link"))));
    m_model->update();
    QVERIFY(m_model->isDir(m_model->index(0, 0, m_root)));
    QVERIFY(m_model->removeRows(0, 1, m_root));
    QVERIFY(QFile::exists(m_folder->above() + QStringLiteral("/target")));
    QVERIFY(!QFileInfo(m_folder->path(QStringLiteral("link"))).isSymLink());
}

void tst_ZvFileSystemModelEditing::removeRowsOutOfRangeIsRefused()
{
    QVERIFY(!m_model->removeRows(2, 2, m_root));
    QVERIFY(!m_model->removeRows(-1, 1, m_root));
    QVERIFY(!m_model->removeRows(0, 0, m_root));
    QVERIFY(!m_model->removeRows(0, std::numeric_limits<int>::max(), m_root));
    QVERIFY(!m_model->removeRows(std::numeric_limits<int>::max(), 1, m_root));
    QVERIFY(!m_model->removeRows(0, 1, QModelIndex()));
    QVERIFY(!m_model->removeRows(0, 1, m_model->index(0, 0, m_root)));
    QCOMPARE(QDir(m_folder->root()).entryList(QDir::Files).size(), 3);
}

void tst_ZvFileSystemModelEditing::dropCopiesMovesAndLinks_data()
{
    QTest::addColumn<Qt::DropAction>("action");
    QTest::addColumn<bool>("sourceStays");
    QTest::addColumn<bool>("isLink");
    QTest::newRow("copy") << Qt::CopyAction << true << false;
    QTest::newRow("move") << Qt::MoveAction << false << false;
    QTest::newRow("link") << Qt::LinkAction << true << true;
}

void tst_ZvFileSystemModelEditing::dropCopiesMovesAndLinks()
{
    QFETCH(Qt::DropAction, action);
    QFETCH(bool, sourceStays);
    QFETCH(bool, isLink);
    FolderFixture other;
    other.write({QStringLiteral("x 1.xml"), QStringLiteral("駅.xml")});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(other.path(QStringLiteral("x 1.xml"))),
                  QUrl::fromLocalFile(other.path(QStringLiteral("駅.xml")))});
    QVERIFY(m_model->dropMimeData(&data, action, -1, -1, m_root));
    QCOMPARE(m_model->rowCount(m_root), 5);
    const QString dropped = m_folder->path(QStringLiteral("駅.xml"));
    QVERIFY(QFile::exists(dropped));
    QCOMPARE(QFileInfo(dropped).isSymLink(), isLink);
    QCOMPARE(QFile::exists(other.path(QStringLiteral("駅.xml"))), sourceStays);
}

void tst_ZvFileSystemModelEditing::dropOverwritesNothing()
{
    FolderFixture other;
    other.write(a, "other");
    other.write(QStringLiteral("new.xml"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(other.path(a)),
                  QUrl::fromLocalFile(other.path(QStringLiteral("new.xml")))});
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::MoveAction, Qt::LinkAction})
        QVERIFY(!m_model->dropMimeData(&data, action, -1, -1, m_root));
    QFile kept(m_folder->path(a));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("x"));
    QVERIFY(QFile::exists(other.path(a)));
    QVERIFY(QFile::exists(m_folder->path(QStringLiteral("new.xml"))));
}

void tst_ZvFileSystemModelEditing::dropOfStrangeThingsIsRefused()
{
    const QString pipe = m_folder->above() + QStringLiteral("/pipe");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QList<QUrl> strange{QUrl(QStringLiteral("http://example.org/x.xml")),
                              QUrl::fromLocalFile(QStringLiteral("/no/such/file")),
                              QUrl::fromLocalFile(QStringLiteral("/")),
                              QUrl(),
                              QUrl::fromLocalFile(m_folder->path(a)),
                              QUrl::fromLocalFile(pipe),
                              QUrl::fromLocalFile(m_folder->above())};
    for (const QUrl &url : strange) {
        QMimeData data;
        data.setUrls({url});
        QVERIFY2(!m_model->dropMimeData(&data, Qt::CopyAction, -1, -1, m_root),
                 qPrintable(url.toString()));
    }
    QMimeData text;
    text.setText(QStringLiteral("a"));
    QVERIFY(!m_model->dropMimeData(&text, Qt::CopyAction, -1, -1, m_root));
    QVERIFY(!m_model->dropMimeData(nullptr, Qt::CopyAction, -1, -1, m_root));
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(m_folder->path(a))});
    QVERIFY(!m_model->dropMimeData(&file, Qt::CopyAction, -1, -1, m_model->index(0, 0, m_root)));
    QVERIFY(m_model->dropMimeData(&file, Qt::IgnoreAction, -1, -1, m_root));
    QCOMPARE(namesBelow(*m_model, m_root), QStringList({a, b, c}));
}

void tst_ZvFileSystemModelEditing::dropIntoASubFolder()
{
    m_folder->mkpath(QStringLiteral("sub"));
    m_model->update();
    const QPersistentModelIndex sub = m_model->index(0, 0, m_root);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_folder->path(a))});
    QVERIFY(m_model->dropMimeData(&data, Qt::MoveAction, -1, -1, sub));
    QVERIFY(QFile::exists(m_folder->path(QStringLiteral("sub/a.xml"))));
    QTRY_COMPARE(namesBelow(*m_model, m_root), QStringList({QStringLiteral("sub"), b, c}));
    m_model->fetchMore(sub);
    QCOMPARE(namesBelow(*m_model, sub), QStringList(a));
}

QTEST_MAIN(tst_ZvFileSystemModelEditing)
#include "tst_zvfilesystemmodelediting.moc"
