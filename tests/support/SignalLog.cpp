#include "SignalLog.h"

#include <QMetaMethod>
#include <QMetaType>
#include <QtTest>

#include <algorithm>

namespace ZavoTest {

void SignalLog::watch(const QObject *sender, const char *signal, const char *name)
{
    const QByteArray signature = QMetaObject::normalizedSignature(signal + 1);
    const int index = sender->metaObject()->indexOfSignal(signature.constData());
    if (index < 0) {
        QTest::qVerify(false, "signal exists", signature.constData(), __FILE__, __LINE__);
        return;
    }
    const QMetaMethod method = sender->metaObject()->method(index);
    Source source;
    source.name = name ? QString::fromLatin1(name) : QString::fromLatin1(method.name());
    for (int parameter = 0; parameter < method.parameterCount(); ++parameter)
        source.types.append(method.parameterType(parameter));
    // The slots exist by number only: one for each watched signal, behind those of QObject.
    const int slot = QObject::staticMetaObject.methodCount() + m_sources.size();
    m_sources.append(source);
    QMetaObject::connect(sender, index, this, slot, Qt::DirectConnection);
}

QStringList SignalLog::names() const
{
    QStringList names;
    for (const Entry &entry : m_entries)
        names.append(entry.name);
    return names;
}

int SignalLog::count(const QString &name) const
{
    return static_cast<int>(
        std::count_if(m_entries.cbegin(), m_entries.cend(),
                      [&name](const Entry &entry) { return entry.name == name; }));
}

QVariantList SignalLog::arguments(int index) const
{
    return m_entries.value(index).arguments;
}

void SignalLog::clear()
{
    m_entries.clear();
}

int SignalLog::qt_metacall(QMetaObject::Call call, int methodId, void **arguments)
{
    methodId = QObject::qt_metacall(call, methodId, arguments);
    if (methodId < 0 || call != QMetaObject::InvokeMetaMethod)
        return methodId;
    if (methodId < m_sources.size()) {
        const Source &source = m_sources.at(methodId);
        Entry entry{source.name, {}};
        for (int parameter = 0; parameter < source.types.size(); ++parameter) {
            const int type = source.types.at(parameter);
            const void *const value = arguments[parameter + 1];
            entry.arguments.append(type == QMetaType::UnknownType ? QVariant()
                                                                  : QVariant(type, value));
        }
        m_entries.append(entry);
    }
    return methodId - m_sources.size();
}

} // namespace ZavoTest
