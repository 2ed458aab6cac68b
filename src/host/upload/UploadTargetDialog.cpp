#include "upload/UploadTargetDialog.h"

#include "upload/UploadNames.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Zavo {

namespace {
constexpr int fieldWidthInCharacters = 44;
} // namespace

UploadTargetDialog::UploadTargetDialog(const QString &address, QWidget *parent)
    : QDialog(parent)
    , m_address(new QLineEdit(address, this))
    , m_problem(new QLabel(this))
{
    setWindowTitle(address.isEmpty() ? tr("Add Target") : tr("Change Target"));
    auto *const label = new QLabel(tr("&Address of the target:"), this);
    label->setBuddy(m_address);
    auto *const forms = new QFormLayout;
    const auto addForm = [this, forms](const QString &kind, const QString &example) {
        auto *const exampleLabel = new QLabel(example, this);
        exampleLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
        forms->addRow(kind, exampleLabel);
    };
    addForm(tr("A folder, such as a mounted share:"), QStringLiteral("/mnt/display"));
    addForm(tr("An rsync daemon:"), QStringLiteral("rsync://display/module"));
    addForm(tr("A machine reached by ssh:"), QStringLiteral("user@display:/srv/zavo"));
    m_address->setObjectName(QLatin1String(UploadNames::addressField));
    m_address->setMinimumWidth(fontMetrics().averageCharWidth() * fieldWidthInCharacters);
    m_address->setAccessibleName(tr("Address of the target"));
    m_problem->setObjectName(QLatin1String(UploadNames::problemLabel));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_problem->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto *const browseButton = new QPushButton(tr("&Browse..."), this);
    browseButton->setAutoDefault(false);
    browseButton->setToolTip(tr("Choose a folder of this machine"));
    auto *const row = new QHBoxLayout;
    row->addWidget(m_address);
    row->addWidget(browseButton);
    // After the others, so that the Tab key comes to it last.
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(row);
    layout->addWidget(m_problem);
    layout->addLayout(forms);
    layout->addStretch();
    layout->addWidget(m_buttons);
    connect(m_address, SIGNAL(textChanged(QString)), this, SLOT(onAddressChanged()));
    connect(browseButton, SIGNAL(clicked()), this, SLOT(browse()));
    connect(m_buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_buttons, SIGNAL(rejected()), this, SLOT(reject()));
    onAddressChanged();
}

UploadTarget UploadTargetDialog::target() const
{
    return UploadTarget(m_address->text());
}

void UploadTargetDialog::onAddressChanged()
{
    const UploadTarget current = target();
    // An empty field speaks for itself.
    m_problem->setText(current.address().isEmpty() ? QString() : current.problem());
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(current.isValid());
}

void UploadTargetDialog::browse()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Choose Folder"), QStringLiteral("/mnt"));
    if (!folder.isEmpty())
        m_address->setText(folder);
}

} // namespace Zavo
