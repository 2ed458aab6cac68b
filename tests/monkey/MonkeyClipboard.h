#pragma once

#include "MonkeyChoice.h"

#include <QMimeData>
#include <QString>
#include <QStringList>

#include <memory>

namespace ZavoTest {

/// What other programs may leave on the clipboard or drag over the window: good payloads, broken
/// ones, and such as have nothing to do with the program.
class MonkeyClipboard final
{
public:
    explicit MonkeyClipboard(MonkeyChoice *choice)
        : m_choice(choice)
    {
    }

    std::unique_ptr<QMimeData> payload(const QStringList &stageFiles);

    /// Files to drop, some of which are no stages or do not exist.
    std::unique_ptr<QMimeData> files(const QStringList &stageFiles);

    /// Text as a hand or a cat on the keyboard types it.
    QString text();

private:
    QByteArray damaged(QByteArray bytes);
    QByteArray times();
    QByteArray schedules();

    MonkeyChoice *m_choice;
};

} // namespace ZavoTest
