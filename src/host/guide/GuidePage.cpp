#include "guide/GuidePage.h"

#include <QColor>
#include <QImageReader>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>

namespace Zavo::GuidePage {

namespace {

// Times the ratio of the screen.
constexpr double widestPicture = 680.0;
constexpr double aboveHeading = 18.0;
constexpr double belowHeading = 6.0;
constexpr double cellPadding = 4.0;

QString anchorOf(const QString &heading)
{
    static const QRegularExpression left(QStringLiteral("[^a-z0-9 -]"));
    return heading.toLower().remove(left).replace(QLatin1Char(' '), QLatin1Char('-'));
}

void layOutHeadings(const QTextDocument &page, double ratio)
{
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0)
            continue;
        QTextCursor cursor(block);
        QTextBlockFormat distant;
        distant.setTopMargin(block == page.begin() ? 0.0 : aboveHeading * ratio);
        distant.setBottomMargin(belowHeading * ratio);
        cursor.mergeBlockFormat(distant);
        QTextCharFormat named;
        named.setAnchor(true);
        named.setAnchorNames({anchorOf(block.text())});
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(named);
    }
}

void layOutTables(const QTextDocument &page, const QColor &lines, double ratio)
{
    const QList<QTextFrame *> frames = page.rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        auto *const table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderCollapse(true);
        format.setBorder(1.0);
        format.setBorderBrush(lines);
        format.setCellSpacing(0.0);
        format.setCellPadding(cellPadding * ratio);
        format.setBottomMargin(belowHeading * ratio);
        table->setFormat(format);
    }
}

void setSizeOfPicture(const QTextFragment &fragment, const QTextBlock &block, const QUrl &url,
                      double ratio)
{
    QTextImageFormat format = fragment.charFormat().toImageFormat();
    const QString path = QLatin1Char(':') + url.resolved(QUrl(format.name())).path();
    const QSize size = shownSize(QImageReader(path).size(), ratio);
    format.setWidth(size.width());
    format.setHeight(size.height());
    QTextCursor cursor(block);
    cursor.setPosition(fragment.position());
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
}

void layOutPictures(const QTextDocument &page, const QUrl &url, double ratio)
{
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (!it.fragment().charFormat().isImageFormat())
                continue;
            setSizeOfPicture(it.fragment(), block, url, ratio);
            break; // a picture has a paragraph of its own
        }
    }
}

} // namespace

QString toHtml(const QByteArray &markdown, const QUrl &url, const QColor &lines, double ratio)
{
    // A document that is on show would be laid out anew with each word that comes.
    QTextDocument page;
    page.setMarkdown(QString::fromUtf8(markdown));
    layOutHeadings(page, ratio);
    layOutTables(page, lines, ratio);
    layOutPictures(page, url, ratio);
    return page.toHtml();
}

QSize shownSize(const QSize &size, double ratio)
{
    const QSize widest(int(widestPicture * ratio), size.height());
    return size.width() <= widest.width() ? size : size.scaled(widest, Qt::KeepAspectRatio);
}

} // namespace Zavo::GuidePage
