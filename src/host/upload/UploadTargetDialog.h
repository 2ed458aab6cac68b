#pragma once

#include "upload/UploadTarget.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace Zavo {

/// Asks for the address of a target and accepts nothing but a valid one.
class UploadTargetDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p address is offered to be changed; empty for a new target.
    explicit UploadTargetDialog(const QString &address, QWidget *parent = nullptr);

    UploadTarget target() const;

private Q_SLOTS:
    void onAddressChanged();
    void browse();

private:
    QLineEdit *m_address = nullptr;
    QLabel *m_problem = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
};

} // namespace Zavo
