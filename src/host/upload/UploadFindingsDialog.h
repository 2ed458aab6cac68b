#pragma once

#include "check/CheckFinding.h"

#include <QDialog>

namespace Zavo {

/// Shows what the check before an upload found and asks whether to upload all the same: it is
/// accepted for yes. To leave it in any other way is a no.
class UploadFindingsDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit UploadFindingsDialog(const CheckReport &report, QWidget *parent = nullptr);
};

} // namespace Zavo
