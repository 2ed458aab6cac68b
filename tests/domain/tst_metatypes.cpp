#include "domain/SelectionType.h"
#include "domain/ZvScheduleBasicInfo.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Zavo;

namespace Zavo {

/// Carries the component's records over connections, spelt as its signals spell them.
class Relay final : public QObject
{
    Q_OBJECT

public:
    ZvScheduleBasicInfo m_received;

public Q_SLOTS:
    void receive(const ZvScheduleBasicInfo &info) { m_received = info; }

Q_SIGNALS:
    void sent(const ZvScheduleBasicInfo &info);
    void sentAll(const QList<ZvScheduleBasicInfo> &infos, const QList<ZvTime> &times);
};

} // namespace Zavo

class tst_MetaTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areKnownByTheirUnqualifiedNames_data();
    void areKnownByTheirUnqualifiedNames();
    void pointersAreKnown_data();
    void pointersAreKnown();
    void crossQueuedConnections();
    void areRecordedBySpies();
};

void tst_MetaTypes::areKnownByTheirUnqualifiedNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("type");
    QTest::newRow("QMap<int,QRectF>")
        << QByteArray("QMap<int,QRectF>") << qMetaTypeId<QMap<int, QRectF>>();
    QTest::newRow("ZvScheduleBasicInfo")
        << QByteArray("ZvScheduleBasicInfo") << qMetaTypeId<ZvScheduleBasicInfo>();
    QTest::newRow("ZvScheduleBasicInfo*")
        << QByteArray("ZvScheduleBasicInfo*") << qMetaTypeId<ZvScheduleBasicInfo *>();
    QTest::newRow("QList<ZvScheduleBasicInfo>")
        << QByteArray("QList<ZvScheduleBasicInfo>") << qMetaTypeId<QList<ZvScheduleBasicInfo>>();
    QTest::newRow("SelectionType") << QByteArray("SelectionType") << qMetaTypeId<SelectionType>();
}

void tst_MetaTypes::areKnownByTheirUnqualifiedNames()
{
    QFETCH(QByteArray, name);
    QTEST(QMetaType::type(name.constData()), "type");
}

void tst_MetaTypes::pointersAreKnown_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"bool*", "const QWidget*", "QGraphicsScene*"})
        QTest::newRow(name) << QByteArray(name);
}

// By name alone: naming the type here would make it known.
void tst_MetaTypes::pointersAreKnown()
{
    QFETCH(QByteArray, name);
    QVERIFY(QMetaType::type(name.constData()) != QMetaType::UnknownType);
}

void tst_MetaTypes::crossQueuedConnections()
{
    Relay relay;
    connect(&relay, SIGNAL(sent(ZvScheduleBasicInfo)), &relay,
                           SLOT(receive(ZvScheduleBasicInfo)), Qt::QueuedConnection);
    const ZvScheduleBasicInfo info(QDate(2026, 12, 24));
    Q_EMIT relay.sent(info);
    QCOMPARE(relay.m_received, ZvScheduleBasicInfo());
    QCoreApplication::processEvents();
    QCOMPARE(relay.m_received, info);
}

void tst_MetaTypes::areRecordedBySpies()
{
    Relay relay;
    QSignalSpy spy(&relay, SIGNAL(sentAll(QList<ZvScheduleBasicInfo>, QList<ZvTime>)));
    const QList<ZvTime> times{ZvTime(QTime(8, 0), QTime(9, 0), QStringLiteral("a.xml"))};
    Q_EMIT relay.sentAll({ZvScheduleBasicInfo(Weekday::Monday)}, times);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(0).value<QList<ZvScheduleBasicInfo>>().value(0),
             ZvScheduleBasicInfo(Weekday::Monday));
    QCOMPARE(spy.first().at(1).value<QList<ZvTime>>(), times);
}

QTEST_GUILESS_MAIN(tst_MetaTypes)
#include "tst_metatypes.moc"
