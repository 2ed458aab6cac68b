#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtTest>

class tst_Documents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linksLeadSomewhere_data();
    void linksLeadSomewhere();
};

namespace {

QString withoutCode(const QString &markdown)
{
    const QStringList parts = markdown.split(QStringLiteral("```"));
    QString text;
    for (int index = 0; index < parts.size(); index += 2)
        text += parts.at(index);
    return text;
}

} // namespace

void tst_Documents::linksLeadSomewhere_data()
{
    QTest::addColumn<QString>("document");
    for (const auto *folder : {"", "docs"}) {
        const QDir dir(QStringLiteral(ZAVO_SOURCE_DIR "/") + QString::fromLatin1(folder));
        for (const QFileInfo &file : dir.entryInfoList({QStringLiteral("*.md")}, QDir::Files))
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }
}

void tst_Documents::linksLeadSomewhere()
{
    static const QRegularExpression expression(QStringLiteral("\\]\\(([^)#]+)"));
    QFETCH(QString, document);
    QFile file(document);
    QVERIFY(file.open(QIODevice::ReadOnly));
    auto links = expression.globalMatch(withoutCode(QString::fromUtf8(file.readAll())));
    while (links.hasNext()) {
        const QString target = links.next().captured(1);
        if (target.startsWith(QLatin1String("https://")))
            continue;
        QVERIFY2(QFileInfo(file).dir().exists(target), qPrintable(target));
    }
}

QTEST_GUILESS_MAIN(tst_Documents)
#include "tst_documents.moc"
