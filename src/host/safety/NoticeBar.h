#pragma once

#include <QToolBar>

class QAction;
class QLabel;

namespace Zavo {

/// A line at the top of the window that tells something without asking. Hidden while there is
/// nothing to tell; the user closes it.
class NoticeBar final : public QToolBar
{
    Q_OBJECT

public:
    /// @p copiesAction leads to what the notices speak of.
    explicit NoticeBar(QAction *copiesAction, QWidget *parent = nullptr);

    QString text() const;

    /// Shows @p text, below what was told before and not closed yet.
    void tell(const QString &text);

private Q_SLOTS:
    void clear();

private:
    QLabel *m_label = nullptr;
};

} // namespace Zavo
