#pragma once

#include <QDialog>

class QBoxLayout;
class QLineEdit;

namespace Zavo {

class GuideBrowser;

/// The user's guide in a window that stays open beside the editor.
class GuideDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit GuideDialog(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Shows the guide in front, where it was left.
    void read();

private Q_SLOTS:
    void findFirst(const QString &text);
    void findNext();

private:
    void addButtons(QBoxLayout *layout);
    void addFindField(QBoxLayout *layout);
    void find(const QString &text, bool here);

    GuideBrowser *m_browser = nullptr;
    QLineEdit *m_findField = nullptr;
};

} // namespace Zavo
