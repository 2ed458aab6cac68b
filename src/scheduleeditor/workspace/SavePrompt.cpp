#include "workspace/SavePrompt.h"

#include <QMessageBox>

namespace Zavo {

SavePrompt::SavePrompt(int reason, QWidget *parent)
    : m_uploading(reason == BeforeUploading)
    , m_box(new QMessageBox(parent))
{
    m_box->setWindowTitle(tr("Save Channel"));
    m_box->setIcon(QMessageBox::Question);
    m_box->setTextFormat(Qt::PlainText);
    m_box->setInformativeText(
        QStringLiteral("%1%2").arg(tr("Do you want to save your changes "),
                                   m_uploading ? tr("before uploading?") : tr("before closing?")));
    QMessageBox::StandardButtons buttons =
        QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No | QMessageBox::NoToAll;
    if (m_uploading)
        buttons |= QMessageBox::Cancel;
    m_box->setStandardButtons(buttons);
}

SavePrompt::Answer SavePrompt::ask(const QString &channelName)
{
    if (m_forAll)
        return *m_forAll;
    if (!m_box)
        return Answer::Cancel;
    QString text = tr("The channel \"%1\" has been modified.").arg(channelName);
    if (m_uploading) {
        text +=
            tr("\nIf you upload without saving, previously saved information will be uploaded.");
    }
    m_box->setText(text);
    return take(m_box->exec());
}

SavePrompt::Answer SavePrompt::take(int button)
{
    switch (button) {
    case QMessageBox::YesToAll:
        m_forAll = Answer::Save;
        return Answer::Save;
    case QMessageBox::Yes:
        return Answer::Save;
    case QMessageBox::NoToAll:
        m_forAll = Answer::Skip;
        return Answer::Skip;
    case QMessageBox::No:
        return Answer::Skip;
    default:
        return Answer::Cancel;
    }
}

} // namespace Zavo
