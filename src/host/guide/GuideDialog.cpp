#include "guide/GuideDialog.h"

#include "ZvSystemInfo.h"
#include "guide/GuideBrowser.h"
#include "guide/GuideNames.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace Zavo {

namespace {

// Times the ratio of the screen.
constexpr QSize guideDialogSize(800, 720);

} // namespace

GuideDialog::GuideDialog(QWidget *parent)
    : QDialog(parent)
    , m_browser(new GuideBrowser(this))
{
    setObjectName(QLatin1String(GuideNames::dialog));
    setWindowTitle(tr("User's Guide"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_browser->setObjectName(QLatin1String(GuideNames::browser));
    m_browser->setAccessibleName(tr("Page of the guide"));
    auto *const layout = new QVBoxLayout(this);
    auto *const bar = new QHBoxLayout;
    addButtons(bar);
    bar->addStretch();
    addFindField(bar);
    layout->addLayout(bar);
    layout->addWidget(m_browser);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // Return in the field finds the next place.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    layout->addWidget(buttons);
    setTabOrder(m_findField, m_browser);
    resize(guideDialogSize * ZvSystemInfo::getDpiRatio(this));
    m_browser->setSource(QUrl(QLatin1String(GuideNames::firstPage)));
    m_browser->setFocus();
}

void GuideDialog::read()
{
    show();
    raise();
    activateWindow();
}

void GuideDialog::addButtons(QBoxLayout *layout)
{
    const auto add = [this, layout](const QString &text, const char *name, const char *slot,
                                    const char *available) {
        auto *const button = new QPushButton(text, this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        button->setEnabled(false);
        connect(button, SIGNAL(clicked()), m_browser, slot);
        connect(m_browser, available, button, SLOT(setEnabled(bool)));
        layout->addWidget(button);
    };
    add(tr("&Back"), GuideNames::backButton, SLOT(backward()), SIGNAL(backwardAvailable(bool)));
    add(tr("&Forward"), GuideNames::forwardButton, SLOT(forward()), SIGNAL(forwardAvailable(bool)));
}

void GuideDialog::addFindField(QBoxLayout *layout)
{
    auto *const label = new QLabel(tr("F&ind:"), this);
    m_findField = new QLineEdit(this);
    m_findField->setObjectName(QLatin1String(GuideNames::findField));
    m_findField->setAccessibleName(tr("Find in the page"));
    m_findField->setClearButtonEnabled(true);
    label->setBuddy(m_findField);
    layout->addWidget(label);
    layout->addWidget(m_findField);
    connect(m_findField, SIGNAL(textEdited(QString)), this, SLOT(findFirst(QString)));
    connect(m_findField, SIGNAL(returnPressed()), this, SLOT(findNext()));
}

void GuideDialog::findFirst(const QString &text)
{
    find(text, true);
}

void GuideDialog::findNext()
{
    find(m_findField->text(), false);
}

void GuideDialog::find(const QString &text, bool here)
{
    const bool found = m_browser->findText(text, here);
    m_findField->setToolTip(found || text.isEmpty() ? QString() : tr("It is not in this page."));
    QPalette colours = palette();
    if (!m_findField->toolTip().isEmpty())
        colours.setColor(QPalette::Text, Qt::red);
    m_findField->setPalette(colours);
}

} // namespace Zavo
