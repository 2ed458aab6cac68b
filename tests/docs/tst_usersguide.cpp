#include "HostWindow.h"
#include "MessageTexts.h"
#include "TemporaryDataFolder.h"
#include "editor/ZvScheduleEditor.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

class tst_UsersGuide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void messagesAreFound_data();
    void messagesAreFound();
    void messagesAreExplained_data();
    void messagesAreExplained();
    void explainedMessagesExist();
    void shortcutsAreListed();

private:
    QMap<QString, QString> m_texts;
    QStringList m_rows; // of the tables in all pages for people, in plain text
};

namespace {

const QDir root(QStringLiteral(ZAVO_SOURCE_DIR));

QStringList linesOf(const QString &document)
{
    QFile file(root.filePath(document));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    return isOpen ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')) : QStringList();
}

/// The lines of its tables.
QStringList rowsOf(const QString &document)
{
    return linesOf(document).filter(QRegularExpression(QStringLiteral("^\\| ")));
}

/// A bar in a table is written as its number, and a backslash is left out of both sides.
QString withoutEscapes(const QString &text)
{
    return QString(text)
        .replace(QLatin1String("&#124;"), QLatin1String("|"))
        .remove(QLatin1Char('\\'));
}

/// What of a text stands in the guide: without the names that come in, and in one line.
QStringList piecesOf(const QString &text)
{
    static const QRegularExpression gap(QStringLiteral("%\\d|%n|\\s\\s+"));
    static const QRegularExpression edges(QStringLiteral("^[\\s\":.,]+|[\\s\":.,]+$"));
    const QString line = withoutEscapes(text).replace(QLatin1Char('\n'), QLatin1Char(' '));
    QStringList pieces;
    for (QString piece : line.split(gap)) {
        piece.remove(edges);
        if (!piece.isEmpty())
            pieces.append(piece);
    }
    return pieces;
}

bool tells(const QString &cells, const QStringList &pieces)
{
    const QString row = withoutEscapes(cells).simplified();
    int from = 0;
    for (const QString &piece : pieces) {
        const int found = row.indexOf(piece, from);
        if (found < 0)
            return false;
        from = found + piece.size();
    }
    return true;
}

} // namespace

void tst_UsersGuide::initTestCase()
{
    m_texts = MessageTexts(root.filePath(QStringLiteral("src")),
                           {QStringLiteral("host/DataFolderCheck.cpp"),
                            QStringLiteral("host/safety/FolderInUseBox.cpp"),
                            QStringLiteral("host/safety/SessionRecord.cpp"),
                            QStringLiteral("scheduleeditor/workspace/ChannelCreation.cpp"),
                            QStringLiteral("scheduleeditor/workspace/ChannelNaming.cpp")})
                  .texts();
    for (const char *document : {"docs/users-guide.md", "docs/uploading.md",
                                 "docs/checking-and-exporting.md", "docs/safety.md"}) {
        const QStringList rows = rowsOf(QString::fromLatin1(document));
        QVERIFY2(!rows.isEmpty(), document);
        m_rows += rows;
    }
}

void tst_UsersGuide::messagesAreFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("in the call") << QStringLiteral("The log folder does not exist.\n");
    QTest::newRow("handed on by a function")
        << QStringLiteral("The channel file can not be deleted.\nPlease check whether it is "
                          "possible to delete the file.");
    QTest::newRow("handed on by a signal")
        << QStringLiteral("You can not reassigned to the allocated time.");
    QTest::newRow("in a variable") << QStringLiteral("The channel \"%1\" has been modified.");
    QTest::newRow("worded by another")
        << QStringLiteral("New name \"%1\" is already used by other channel.\nYou have to specify "
                          "another name.");
    QTest::newRow("in the box's own class")
        << QStringLiteral("The data folder \"%1\" is open in another program.");
}

void tst_UsersGuide::messagesAreFound()
{
    QFETCH(QString, text);
    QVERIFY(m_texts.contains(text));
}

void tst_UsersGuide::messagesAreExplained_data()
{
    QTest::addColumn<QString>("text");
    for (auto text = m_texts.cbegin(); text != m_texts.cend(); ++text)
        QTest::newRow(qPrintable(text.value() + QStringLiteral(": ") + text.key())) << text.key();
}

void tst_UsersGuide::messagesAreExplained()
{
    QFETCH(QString, text);
    const QStringList pieces = piecesOf(text);
    QVERIFY(!pieces.isEmpty());
    QVERIFY(std::any_of(m_rows.cbegin(), m_rows.cend(),
                        [&pieces](const QString &row) { return tells(row, pieces); }));
}

// A text that was changed leaves no explanation of the old one behind.
void tst_UsersGuide::explainedMessagesExist()
{
    static const QRegularExpression sentence(QStringLiteral("^\\| ([^|]*[.?)]) \\| "));
    int count = 0;
    bool inTables = false;
    for (const QString &row : linesOf(QStringLiteral("docs/users-guide.md"))) {
        inTables = inTables || row == QLatin1String("## What the messages mean");
        const QString message = sentence.match(row).captured(1);
        if (message.isEmpty() || !inTables)
            continue;
        ++count;
        const bool exists =
            std::any_of(m_texts.keyBegin(), m_texts.keyEnd(),
                        [&message](const QString &text) { return tells(message, piecesOf(text)); });
        QVERIFY2(exists, qPrintable(message));
    }
    QVERIFY(count > 40);
}

void tst_UsersGuide::shortcutsAreListed()
{
    const ZavoTest::TemporaryDataFolder folder;
    Zavo::HostWindow window;
    QString message;
    QVERIFY2(window.start(&message), qPrintable(message));
    QList<QAction *> actions = window.findChildren<QAction *>();
    const QList<QMenu *> menus = window.editor()->menu();
    for (const QMenu *menu : menus)
        actions += menu->findChildren<QAction *>();
    QStringList keys;
    for (const QAction *action : qAsConst(actions)) {
        const QString name = action->text().remove(QLatin1Char('&')).remove(QStringLiteral("..."));
        if (!action->shortcut().isEmpty())
            keys.append(name + QStringLiteral(" | ") + action->shortcut().toString());
    }
    QStringList listed;
    bool inTable = false;
    for (const QString &row : linesOf(QStringLiteral("docs/users-guide.md"))) {
        if (row.startsWith(QLatin1String("## ")))
            inTable = row == QLatin1String("## Shortcuts");
        const bool isCommand = row.count(QLatin1Char('|')) == 3;
        if (inTable && isCommand && row.startsWith(QLatin1String("| ")))
            listed.append(row.mid(2).chopped(2));
    }
    listed.removeOne(QStringLiteral("Command | Keys"));
    listed.sort();
    keys.sort();
    keys.removeDuplicates();
    QCOMPARE(listed, keys);
}

QTEST_MAIN(tst_UsersGuide)
#include "tst_usersguide.moc"
