#include "check/CheckText.h"

#include <QStringList>

namespace Zavo {

namespace {

QString withoutControls(QString text)
{
    for (QChar &c : text) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            c = QChar(0x25a1);
    }
    return text;
}

} // namespace

QString CheckText::line(const CheckFinding &finding)
{
    QStringList parts;
    for (const QString &part : {finding.file, finding.channel, finding.schedule, finding.text}) {
        if (!part.isEmpty())
            parts.append(withoutControls(part));
    }
    return parts.join(QStringLiteral(": "));
}

QString CheckText::summary(const CheckReport &report)
{
    const QString looked = tr("%1, %2").arg(tr("%n channel file(s)", nullptr, report.channelCount),
                                            tr("%n stage(s)", nullptr, report.stageCount));
    if (report.findings.isEmpty())
        return tr("Nothing found in %1.").arg(looked);
    return tr("%n finding(s) in %1.", nullptr, report.findings.size()).arg(looked);
}

} // namespace Zavo
