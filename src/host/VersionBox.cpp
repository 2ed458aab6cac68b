#include "VersionBox.h"

#include "ZvEditorConfig.h"

#include <QApplication>
#include <QDir>
#include <QIcon>

namespace Zavo {

namespace {
constexpr int iconSizePx = 64;
} // namespace

VersionBox::VersionBox(QWidget *parent)
    : QMessageBox(parent)
{
    setWindowTitle(tr("About Zavo Schedule Editor"));
    setText(tr("Zavo Schedule Editor %1").arg(QCoreApplication::applicationVersion()));
    // A path can hold what rich text would take for a tag.
    setTextFormat(Qt::PlainText);
    setInformativeText(
        tr("Edits the daily programme of display channels.\n\nQt %1\nData folder: %2")
            .arg(QLatin1String(qVersion()), QDir::toNativeSeparators(ZvEditorConfig::dataDir())));
    setIconPixmap(QIcon(QStringLiteral(":/icons/zavo-schedule-editor.svg")).pixmap(iconSizePx));
    setStandardButtons(Ok);
}

} // namespace Zavo
