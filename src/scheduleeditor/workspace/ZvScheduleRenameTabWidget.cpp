#include "workspace/ZvScheduleRenameTabWidget.h"

#include <QPointer>

namespace Zavo {

ZvScheduleRenameTabWidget::ZvScheduleRenameTabWidget(QWidget *parent)
    : QLineEdit(parent)
{
    connect(this, SIGNAL(textChanged(QString)), this, SLOT(onTextEdited(QString)));
    connect(this, SIGNAL(editingFinished()), this, SLOT(onEditingFinished()));
}

void ZvScheduleRenameTabWidget::setInitialText(const QString &text)
{
    m_initialText = text;
    setText(text);
}

void ZvScheduleRenameTabWidget::onTextEdited(const QString &text)
{
    Q_EMIT textEdited(text, m_initialText);
}

// The receiver hides the editor, which loses the focus and so finishes a second time.
void ZvScheduleRenameTabWidget::onEditingFinished()
{
    if (m_finishing)
        return;
    const QPointer<ZvScheduleRenameTabWidget> self(this);
    m_finishing = true;
    Q_EMIT editingFinished(this);
    if (self)
        m_finishing = false;
}

} // namespace Zavo
