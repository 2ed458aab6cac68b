#pragma once

#include <QTextBrowser>

namespace Zavo {

/// Shows the pages of the guide, which the program carries with it.
class GuideBrowser final : public QTextBrowser
{
    Q_OBJECT

public:
    explicit GuideBrowser(QWidget *parent = nullptr);

    /// Selects the next place that has @p text, whatever its capitals, and begins again at the top
    /// of the page after the last. A place that is selected counts if @p here. False, with nothing
    /// selected, if there is none.
    bool findText(const QString &text, bool here);

    QVariant loadResource(int type, const QUrl &name) override;

public Q_SLOTS:
    void setSource(const QUrl &name) override;
};

} // namespace Zavo
