// The bytes of stage files and stage packages.
#include "Application.h"
#include "Disk.h"
#include "FuzzInput.h"

#include "ZvStage.h"
#include "storage/StageFile.h"

#include <QImage>

using namespace Zavo;
using namespace ZavoFuzz;

namespace {

constexpr QSize SizeOutside(7, 13);
constexpr int MostItems = 10000;

/// A stage folder with a picture, and beside it one that no stage may show.
class StageFolder final
{
public:
    StageFolder()
    {
        QDir().mkpath(m_disk.path(QStringLiteral("stage/sub")));
        savePicture(QStringLiteral("stage/in.png"), QSize(2, 2));
        savePicture(QStringLiteral("stage/sub/in.png"), QSize(2, 2));
        savePicture(QStringLiteral("out.png"), SizeOutside);
        savePicture(QStringLiteral("stage2/out.png"), SizeOutside);
        QFile::link(m_disk.path(QStringLiteral("out.png")),
                    m_disk.path(QStringLiteral("stage/link.png")));
        QFile::link(m_disk.path(QString()), m_disk.path(QStringLiteral("stage/up")));
    }

    QString write(const char *suffix, const QByteArray &bytes) const
    {
        return m_disk.write(QStringLiteral("stage/a.") + QLatin1String(suffix), bytes);
    }

private:
    void savePicture(const QString &name, const QSize &size) const
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QDir().mkpath(QFileInfo(m_disk.path(name)).path());
        require(picture.save(m_disk.path(name)), name);
    }

    Disk m_disk;
};

void checkStage(const ZvStage &stage)
{
    const QSize largest(ZvStage::MaximumLength, ZvStage::MaximumLength);
    require(!stage.isEmpty() && !stage.size().isEmpty() &&
                stage.size().boundedTo(largest) == stage.size(),
            QStringLiteral("a stage has an impossible size"));
    const QList<ZvStageItem> items = stage.items();
    require(items.size() <= MostItems, QStringLiteral("a stage has too many items"));
    for (const ZvStageItem &item : items) {
        const QSize size = item.picture.size();
        require(size != SizeOutside, QStringLiteral("a stage shows a picture from outside"));
        require(size.boundedTo(largest) == size, QStringLiteral("a picture is too large"));
        require(qIsFinite(item.box.x()) && qIsFinite(item.box.y()) && qIsFinite(item.box.width()) &&
                    qIsFinite(item.box.height()),
                QStringLiteral("an item has an impossible place"));
    }
}

void checkRead(const QString &path)
{
    ZvStage stage(path);
    const bool isRead = stage.readFile();
    QStringList sources;
    const bool areNamed = StageFile::pictureSources(path, &sources);
    require(isRead == areNamed, QStringLiteral("a stage is read, but its pictures are not named"));
    if (isRead)
        checkStage(stage);
    else
        require(stage.isEmpty() && sources.isEmpty(),
                QStringLiteral("a stage that was refused is there in part"));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startApplication();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const StageFolder folder;
    const QByteArray content(reinterpret_cast<const char *>(bytes), static_cast<int>(size));
    checkRead(folder.write(content.startsWith("PK") ? "zstg" : "xml", content));
    return 0;
}
