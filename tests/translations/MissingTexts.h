#pragma once

#include <QSet>
#include <QString>
#include <QTranslator>

/// Hears of every text of the program that no catalogue has. It is asked last if it is installed
/// first.
class MissingTexts final : public QTranslator
{
    Q_OBJECT

public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        if (QByteArray(context).startsWith("Zavo::"))
            m_texts.insert(
                QStringLiteral("%1: %2").arg(QString::fromUtf8(context), QString::fromUtf8(text)));
        return {};
    }

    QSet<QString> texts() const { return m_texts; }

private:
    mutable QSet<QString> m_texts;
};
