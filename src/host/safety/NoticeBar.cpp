#include "safety/NoticeBar.h"

#include "safety/SafetyNames.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace Zavo {

NoticeBar::NoticeBar(QAction *copiesAction, QWidget *parent)
    : QToolBar(tr("Notice"), parent)
    , m_label(new QLabel)
{
    setObjectName(QLatin1String(SafetyNames::noticeBar));
    setMovable(false);
    // It comes and goes by itself, not by the list of bars.
    toggleViewAction()->setVisible(false);
    m_label->setObjectName(QLatin1String(SafetyNames::noticeLabel));
    m_label->setTextFormat(Qt::PlainText);
    // A long text must not make the window wider; the tool tip has all of it.
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *const closeAction = new QAction(tr("Close"), this);
    closeAction->setObjectName(QLatin1String(SafetyNames::noticeCloseAction));
    closeAction->setStatusTip(tr("Hides this notice"));
    closeAction->setWhatsThis(tr("Hides this notice until there is another one."));
    connect(closeAction, SIGNAL(triggered()), this, SLOT(clear()));
    auto *const content = new QWidget;
    content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *const line = new QHBoxLayout(content);
    line->addWidget(m_label, 1);
    for (QAction *action : {copiesAction, closeAction}) {
        auto *const button = new QToolButton;
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setAutoRaise(true);
        line->addWidget(button);
    }
    if (auto *const more = findChild<QToolButton *>(QLatin1String(SafetyNames::noticeExtension)))
        more->setAccessibleName(tr("More commands"));
    line->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0, 0, 0);
    addWidget(content);
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
    m_label->setToolTip(m_label->text());
    show();
}

void NoticeBar::clear()
{
    m_label->clear();
    hide();
}

} // namespace Zavo
