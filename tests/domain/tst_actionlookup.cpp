#include "domain/ActionLookup.h"

#include <QAction>
#include <QWidget>
#include <QtTest>

using namespace Zavo;

class tst_ActionLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void find_data();
    void find();

private:
    QStringList textsOf(const QList<QAction *> &actions) const;

    std::unique_ptr<QWidget> m_widget;
};

// Five actions, told apart by their texts; two share the name "b", one has none.
void tst_ActionLookup::init()
{
    m_widget = std::make_unique<QWidget>();
    const char *const names[] = {"a", "b", "", "b", "c"};
    for (int i = 0; i < 5; ++i) {
        auto *action = new QAction(QString::number(i), m_widget.get());
        action->setObjectName(QLatin1String(names[i]));
        m_widget->addAction(action);
    }
}

void tst_ActionLookup::cleanup()
{
    m_widget.reset();
}

QStringList tst_ActionLookup::textsOf(const QList<QAction *> &actions) const
{
    QStringList texts;
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

void tst_ActionLookup::find_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("expected");
    QTest::newRow("in the order of the names") << QStringLiteral("c,a") << QStringLiteral("4,0");
    QTest::newRow("first of two") << QStringLiteral("b") << QStringLiteral("1");
    QTest::newRow("asked twice") << QStringLiteral("b,b") << QStringLiteral("1,1");
    QTest::newRow("unknown among known") << QStringLiteral("c,x,a") << QStringLiteral("4,0");
    QTest::newRow("case counts") << QStringLiteral("A") << QString();
}

void tst_ActionLookup::find()
{
    QFETCH(QString, names);
    const QList<QAction *> found =
        findActionsByName(m_widget->actions(), names.split(QLatin1Char(',')));
    QTEST(textsOf(found).join(QLatin1Char(',')), "expected");
    const QAction *first =
        findActionByName(m_widget->actions(), names.section(QLatin1Char(','), 0, 0));
    QCOMPARE(first ? first->text() : QString(), textsOf(found).value(0));
}

QTEST_MAIN(tst_ActionLookup)
#include "tst_actionlookup.moc"
