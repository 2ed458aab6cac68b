#pragma once

#include <QApplication>
#include <QTimer>

#include <functional>

namespace ZavoTest {

/// Acts once on the next modal dialog of that type, while it runs.
///
///     DialogAnswer<MyDialog> answer([](MyDialog *dialog) { dialog->accept(); });
///     widget.doSomethingThatAsks();
///     QVERIFY(answer.hasCome());
template<typename Dialog>
class DialogAnswer final
{
    Q_DISABLE_COPY(DialogAnswer)

public:
    explicit DialogAnswer(std::function<void(Dialog *)> act)
        : m_act(std::move(act))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(1);
    }

    bool hasCome() const { return m_hasCome; }

private:
    void look()
    {
        auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        m_timer.stop();
        m_hasCome = true;
        m_act(dialog);
    }

    std::function<void(Dialog *)> m_act;
    QTimer m_timer;
    bool m_hasCome = false;
};

} // namespace ZavoTest
