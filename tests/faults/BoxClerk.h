#pragma once

#include "ForkedRun.h"

#include <QObject>

class QMessageBox;

namespace ZavoTest {

/// Reads every message box, tells what it says as a line "box <title>|<text>", and agrees to it.
class BoxClerk final : public QObject
{
    Q_OBJECT

public:
    explicit BoxClerk(const ForkedRun::Report &report);

    /// Whether to agree to the question before the state of another program is replaced.
    void setAgrees(const std::function<bool()> &agrees) { m_agrees = agrees; }

    /// Texts of the boxes since the last call.
    QStringList takeTexts();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QMessageBox *box);

    ForkedRun::Report m_report;
    std::function<bool()> m_agrees;
    QStringList m_texts;
};

} // namespace ZavoTest
