// Stage names: as they come with a drag, and as the names in a channel of which a package is made.
// Nothing outside of the stage folder may be reached by any of them.
#include "Application.h"
#include "Disk.h"
#include "FuzzInput.h"

#include "ZvChannel.h"
#include "ZvEditorConfig.h"
#include "exporter/ChannelPackage.h"
#include "stages/ZvScheduleStageListView.h"

#include <KArchive>
#include <KArchiveDirectory>
#include <KZip>

#include <QBuffer>
#include <QMimeData>
#include <QUrl>

using namespace Zavo;
using namespace ZavoFuzz;

namespace {

const QByteArray SecretText("this lies outside");
const QByteArray Scene("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<Stage version=\"1\" width=\"4\" height=\"4\">%1</Stage>\n");

/// A stage folder, and outside of it what nobody may get at: beside, above, by links.
class House final
{
public:
    House()
    {
        for (const char *inside : {"stage/a.xml", "stage/sub/b.zstg", "stage/sub/..a.xml"})
            m_disk.write(QLatin1String(inside), Scene);
        for (const char *outside : {"a.xml", "stage2/a.xml", "stag/a.xml", "out/secret.xml"})
            m_disk.write(QLatin1String(outside), SecretText);
        link("a.xml", "stage/link.xml");
        link("out", "stage/up");
        link("stage/sub", "stage/down");
        ZvEditorConfig::setDataDir(m_disk.path(QString()));
    }

    QString stageFolder() const { return m_disk.path(QStringLiteral("stage")); }
    QString dataFolder() const { return m_disk.path(QString()); }

    bool isInside(const QString &name) const
    {
        const QString root = stageFolder() + QLatin1Char('/');
        const QString path = root + name;
        const QString real = QFileInfo(path).canonicalFilePath();
        return QDir::cleanPath(path).startsWith(root) && (real.isEmpty() || real.startsWith(root));
    }

private:
    void link(const char *from, const char *to) const
    {
        require(QFile::link(m_disk.path(QLatin1String(from)), m_disk.path(QLatin1String(to))),
                QLatin1String(to));
    }

    Disk m_disk;
};

/// The bytes with each dollar in the place of the stage folder, which is another in every run.
QByteArray placed(QByteArray bytes, const House &house)
{
    return bytes.replace('$', house.stageFolder().toUtf8());
}

void checkNames(const QStringList &names)
{
    const QByteArray encoded = ZvScheduleStageListView::encodeStageNames(names);
    const bool hasBreak = std::any_of(names.cbegin(), names.cend(), [](const QString &name) {
        return name.contains(QLatin1Char('\n')) || name.contains(QLatin1Char('\r'));
    });
    require(hasBreak || ZvScheduleStageListView::decodeStageNames(encoded) == names,
            QStringLiteral("stage names change on their way"));
}

void checkDrag(const QByteArray &uris, const House &house)
{
    const QStringList names = ZvScheduleStageListView::stageNamesFromUriList(uris, true);
    for (const QString &name : names) {
        require(house.isInside(name), QStringLiteral("\"%1\" leads outside").arg(name));
        require(ZvScheduleStageListView::stageSuffixes().contains(QFileInfo(name).suffix()),
                QStringLiteral("\"%1\" is no stage").arg(name));
    }
    checkNames(names);
    ZvScheduleStageListView::stageNamesFromUriList(uris, false);

    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), uris);
    const bool isTaken = ZvScheduleStageListView::keepStageNames(&data);
    const QStringList kept = ZvScheduleStageListView::keptStageNames(&data);
    require(isTaken == !kept.isEmpty(), QStringLiteral("a drag is taken without a stage"));
    for (const QString &name : kept)
        require(house.isInside(name), QStringLiteral("the kept \"%1\" leads outside").arg(name));
}

void checkPackage(const QByteArray &name, const House &house)
{
    ZvChannel channel(house.dataFolder() + QStringLiteral("/channel/channel1.xml"));
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    schedule.setDefaultStage(QString::fromUtf8(name));
    channel.insertSchedule(schedule);
    ChannelPackage package(house.dataFolder(), [] { return false; });
    const ExportContent content = package.of(channel, "channel");
    if (!content.problem.isEmpty())
        return;
    QByteArray bytes = content.bytes;
    QBuffer buffer(&bytes);
    KZip zip(&buffer);
    require(zip.open(QIODevice::ReadOnly), QStringLiteral("a package cannot be opened"));
    QStringList folders{QString()};
    while (!folders.isEmpty()) {
        const QString folder = folders.takeFirst();
        const auto *directory = static_cast<const KArchiveDirectory *>(
            folder.isEmpty() ? zip.directory() : zip.directory()->entry(folder));
        const QStringList entries = directory->entries();
        for (const QString &entry : entries) {
            require(entry != QLatin1String(".."), QStringLiteral("a package unpacks upwards"));
            const QString path = folder.isEmpty() ? entry : folder + QLatin1Char('/') + entry;
            if (directory->entry(entry)->isDirectory())
                folders.append(path);
            else
                require(!directory->file(entry)->data().contains(SecretText),
                        QStringLiteral("\"%1\" comes from outside").arg(path));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startApplication();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const House house;
    FuzzInput input(bytes, size);
    const int what = input.byte();
    const QByteArray text = placed(input.rest(), house);
    if (what == 'P')
        checkPackage(text, house);
    else if (what == 'N')
        checkNames(ZvScheduleStageListView::decodeStageNames(text));
    else
        checkDrag(text, house);
    return 0;
}
