#include "safety/NoticeBar.h"

#include "safety/SafetyNames.h"

#include <QAction>
#include <QLabel>
#include <QStyle>

namespace Zavo {

NoticeBar::NoticeBar(QAction *copiesAction, QWidget *parent)
    : QToolBar(tr("Notice"), parent)
    , m_label(new QLabel(this))
{
    setObjectName(QLatin1String(SafetyNames::noticeBar));
    setMovable(false);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    // It comes and goes by itself, not by the list of bars.
    toggleViewAction()->setVisible(false);
    m_label->setObjectName(QLatin1String(SafetyNames::noticeLabel));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setMargin(style()->pixelMetric(QStyle::PM_ButtonMargin));
    m_label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(m_label);
    addAction(copiesAction);
    auto *const closeAction = new QAction(tr("Close"), this);
    closeAction->setObjectName(QLatin1String(SafetyNames::noticeCloseAction));
    connect(closeAction, SIGNAL(triggered()), this, SLOT(clear()));
    addAction(closeAction);
    hide();
}

QString NoticeBar::text() const
{
    return m_label->text();
}

void NoticeBar::tell(const QString &text)
{
    constexpr int maximumLines = 4;
    QStringList lines = m_label->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.removeAll(text);
    lines.append(text);
    m_label->setText(lines.mid(qMax(0, lines.size() - maximumLines)).join(QLatin1Char('\n')));
    show();
}

void NoticeBar::clear()
{
    m_label->clear();
    hide();
}

} // namespace Zavo
