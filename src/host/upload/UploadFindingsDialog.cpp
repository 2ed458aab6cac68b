#include "upload/UploadFindingsDialog.h"

#include "check/CheckFindingModel.h"
#include "check/CheckFindingView.h"
#include "check/CheckText.h"
#include "upload/UploadNames.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace Zavo {

namespace {
constexpr int findingsWidthInCharacters = 110;
constexpr int findingsHeightInLines = 18;
} // namespace

UploadFindingsDialog::UploadFindingsDialog(const CheckReport &report, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QLatin1String(UploadNames::findingsDialog));
    setWindowTitle(tr("Check Before Upload"));
    auto *const model = new CheckFindingModel(this);
    model->setFindings(report.findings);
    QTreeView *const view = createFindingView(model, this);
    auto *const found =
        new QLabel(tr("%1 Upload all the same?").arg(CheckText::summary(report)), this);
    found->setTextFormat(Qt::PlainText);
    found->setWordWrap(true);
    auto *const buttons = new QDialogButtonBox(this);
    QPushButton *const goOn =
        buttons->addButton(tr("&Upload All the Same"), QDialogButtonBox::AcceptRole);
    goOn->setObjectName(QLatin1String(UploadNames::goOnButton));
    goOn->setAutoDefault(false);
    QPushButton *const stop =
        buttons->addButton(tr("&Do Not Upload"), QDialogButtonBox::RejectRole);
    stop->setObjectName(QLatin1String(UploadNames::stopButton));
    stop->setDefault(true);
    stop->setFocus();
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(found);
    layout->addWidget(view);
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * findingsWidthInCharacters,
           fontMetrics().lineSpacing() * findingsHeightInLines);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
}

} // namespace Zavo
