#include "timetable/TimeTableTextItem.h"

#include "timetable/TimeTableFont.h"

#include <QCache>
#include <QCoreApplication>
#include <QPair>
#include <QTextDocument>

namespace Zavo {

namespace {

using DocumentKey = QPair<QString, int>;
using DocumentCache = QCache<DocumentKey, QSharedPointer<QTextDocument>>;

constexpr int keptDocuments = 8192;

DocumentCache &documentCache()
{
    static DocumentCache cache(keptDocuments);
    // Documents hold fonts, which have to go before the application does.
    static const bool registered = [] {
        qAddPostRoutine([] { documentCache().clear(); });
        return true;
    }();
    Q_UNUSED(registered)
    return cache;
}

QSharedPointer<QTextDocument> documentOf(const QString &text, int pixelSize)
{
    const DocumentKey key(text, pixelSize);
    if (const auto *kept = documentCache().object(key))
        return *kept;
    auto document = QSharedPointer<QTextDocument>::create();
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(TimeTableFont::font(pixelSize));
    document->setPlainText(text);
    documentCache().insert(key, new QSharedPointer<QTextDocument>(document));
    return document;
}

} // namespace

TimeTableTextItem::TimeTableTextItem(QGraphicsItem *parent)
    : QGraphicsTextItem(parent)
{
    setFlag(ItemIgnoresTransformations);
    setFlag(ItemIsSelectable, false);
    // A text that asked for hover and drops would make the scene search all items at every move of
    // the mouse.
    setAcceptHoverEvents(false);
    setAcceptDrops(false);
}

TimeTableTextItem::~TimeTableTextItem() = default;

void TimeTableTextItem::setLabel(const QString &text, int pixelSize)
{
    QSharedPointer<QTextDocument> document = documentOf(text, pixelSize);
    if (document == m_document)
        return;
    setDocument(document.data());
    m_document = document;
}

} // namespace Zavo
