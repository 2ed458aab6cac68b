#pragma once

#include <QMessageBox>

namespace Zavo {

/// Tells the user which program in which version this is, and which data folder it has open.
class VersionBox final : public QMessageBox
{
    Q_OBJECT

public:
    explicit VersionBox(QWidget *parent = nullptr);
};

} // namespace Zavo
