#pragma once

#include <QSize>
#include <QString>

class QColor;
class QUrl;

namespace Zavo::GuidePage {

/// A page written in Markdown as one that is quickly shown: its headings are anchors, named by
/// their words with dashes between, and its pictures have their sizes, so that each is read when it
/// comes in sight. @p url is where the page lies in the program, @p lines the colour of its tables,
/// and
/// @p ratio what the screen scales by.
QString toHtml(const QByteArray &markdown, const QUrl &url, const QColor &lines, double ratio);

/// The size in which a picture of @p size is shown, as wide as a page is comfortably read.
QSize shownSize(const QSize &size, double ratio);

} // namespace Zavo::GuidePage
