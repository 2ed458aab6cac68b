#include "guide/GuideBrowser.h"

#include "ZvSystemInfo.h"
#include "guide/GuidePage.h"

#include <QImage>
#include <QPalette>
#include <QTextCursor>

namespace Zavo {

namespace {

constexpr double guideMargin = 16.0; // times the ratio of the screen

} // namespace

GuideBrowser::GuideBrowser(QWidget *parent)
    : QTextBrowser(parent)
{
    document()->setDocumentMargin(guideMargin * ZvSystemInfo::getDpiRatio(this));
}

bool GuideBrowser::findText(const QString &text, bool here)
{
    QTextCursor start = textCursor();
    start.setPosition(here ? start.selectionStart() : start.selectionEnd());
    setTextCursor(start);
    if (text.isEmpty())
        return false;
    if (find(text))
        return true;
    moveCursor(QTextCursor::Start);
    if (find(text))
        return true;
    setTextCursor(start);
    return false;
}

QVariant GuideBrowser::loadResource(int type, const QUrl &name)
{
    const QVariant resource = QTextBrowser::loadResource(type, name);
    const double ratio = ZvSystemInfo::getDpiRatio(this);
    if (type == QTextDocument::HtmlResource) {
        return GuidePage::toHtml(resource.toByteArray(), name, palette().color(QPalette::Mid),
                                 ratio);
    }
    if (type != QTextDocument::ImageResource)
        return resource;
    const QImage picture = QImage::fromData(resource.toByteArray());
    const double pixels = devicePixelRatioF();
    const QSize size = GuidePage::shownSize(picture.size(), ratio) * pixels;
    QImage shown = picture.scaled(size.boundedTo(picture.size()), Qt::KeepAspectRatio,
                                  Qt::SmoothTransformation);
    shown.setDevicePixelRatio(pixels);
    return shown;
}

// All pages are written in Markdown, whatever their links say.
void GuideBrowser::setSource(const QUrl &name)
{
    QTextBrowser::setSource(name, QTextDocument::HtmlResource);
}

} // namespace Zavo
