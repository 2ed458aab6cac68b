#include "Bench.h"

#include "Path.h"
#include "ZvFileSystemModel.h"

#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Zavo;

namespace {

constexpr int manyStages = 10000;
constexpr int longestWait = 5000; // ms
constexpr double listingGoal = 3.0;
constexpr double rowsGoal = 1.0;
const QLatin1String added("zzz.xml");

void writeFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
}

void writeStages(const QDir &folder, int count)
{
    for (int i = 0; i < count; ++i)
        writeFile(folder.filePath(QStringLiteral("stage%1.xml").arg(i)));
}

void prepare(ZvFileSystemModel *model)
{
    model->setNameFilters({QStringLiteral("*.xml"), QStringLiteral("*.zstg")});
    model->setFilter(QDir::Files | QDir::NoDotAndDotDot);
}

double list(const QString &folder)
{
    ZvFileSystemModel model;
    prepare(&model);
    return Bench::measureProcessor([&] {
        if (model.rowCount(model.setRootPath(folder)) != manyStages)
            qFatal("not all stages are listed");
    });
}

double listPlainly(const QString &folder)
{
    return Bench::measureProcessor([&folder] {
        if (QDir(folder).entryInfoList(QDir::Files).size() != manyStages)
            qFatal("not all files are listed");
    });
}

/// Rows that come and go, and resets, when one stage file is added to the folder.
double rowsForOneStage(const QString &folder)
{
    ZvFileSystemModel model;
    prepare(&model);
    model.setRootPath(folder);
    const QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex,int,int)));
    const QSignalSpy removed(&model, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    const QSignalSpy reset(&model, SIGNAL(modelReset()));
    const QString path = QDir(folder).filePath(added);
    writeFile(path);
    if (inserted.isEmpty())
        QSignalSpy(&model, SIGNAL(rowsInserted(QModelIndex,int,int))).wait(longestWait);
    QFile::remove(path);
    double rows = reset.size() * manyStages + removed.size() * manyStages;
    for (const QList<QVariant> &report : inserted)
        rows += report.at(2).toInt() - report.at(1).toInt() + 1;
    return rows;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    Bench::Table table(QCoreApplication::arguments());
    const QTemporaryDir many;
    writeStages(QDir(many.path()), manyStages);
    table.addFigures(
        {QStringLiteral("list stages / QDir::entryInfoList"), manyStages, listingGoal},
        [&many] { return listPlainly(many.path()); }, [&many] { return list(many.path()); });
    constexpr int pairs = 3;
    table.addFigures(
        {QStringLiteral("rows for one more stage / one row"), manyStages, rowsGoal},
        [] { return 1.0; }, [&many] { return rowsForOneStage(many.path()); }, pairs);
    return table.finish();
}
