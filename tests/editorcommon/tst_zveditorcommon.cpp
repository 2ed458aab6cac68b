#include "ZvEditorCommon.h"

#include <QtTest>

using Zavo::ZvEditorCommon;

class tst_ZvEditorCommon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mimeTypes();
};

void tst_ZvEditorCommon::mimeTypes()
{
    QCOMPARE(ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA,
             QStringLiteral("application/x-zavo-schedule-data"));
    QCOMPARE(ZvEditorCommon::MIME_TYPE_TIME_DATA, QStringLiteral("application/x-zavo-time-data"));
    QCOMPARE(ZvEditorCommon::MIME_TYPE_STAGE_NAME, QStringLiteral("application/x-zavo-stage-name"));
}

QTEST_GUILESS_MAIN(tst_ZvEditorCommon)
#include "tst_zveditorcommon.moc"
