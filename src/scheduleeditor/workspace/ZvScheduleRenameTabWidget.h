#pragma once

#include <QLineEdit>

namespace Zavo {

/// The line edit that stands in for a tab's title while it is renamed. Leaving it by any means ends
/// the editing; there is no key that gives it up.
class ZvScheduleRenameTabWidget final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ZvScheduleRenameTabWidget(QWidget *parent = nullptr);

    /// The title that the editing began with.
    QString initialText() const { return m_initialText; }

    /// Sets the title that the editing begins with, and shows it.
    void setInitialText(const QString &text);

Q_SIGNALS:
    /// After each change of the text.
    void textEdited(const QString &text, const QString &initialText);

    /// Once, when the editing ends. @p object is this editor, which the receiver hides and deletes.
    void editingFinished(QObject *object);

private Q_SLOTS:
    void onTextEdited(const QString &text);
    void onEditingFinished();

private:
    QString m_initialText;
    bool m_finishing = false;
};

} // namespace Zavo
