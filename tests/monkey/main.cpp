#include "Monkey.h"
#include "MonkeyClock.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QHash>

#include <sys/personality.h>
#include <unistd.h>

namespace {

constexpr unsigned long AskForPersonality = 0xffffffff;

// Addresses lead the order of sets; a program that always lies at the same ones sorts them alike.
void stayInPlace(char *argv[])
{
    const int now = personality(AskForPersonality);
    if (now < 0 || (now & ADDR_NO_RANDOMIZE) != 0)
        return;
    if (personality(static_cast<unsigned long>(now) | ADDR_NO_RANDOMIZE) >= 0 &&
        (personality(AskForPersonality) & ADDR_NO_RANDOMIZE) != 0)
        execv("/proc/self/exe", argv);
}

// The same seed is to lead to the same events with the same outcome. A real display has a time of
// its own, which cannot be led.
void makeRepeatable()
{
    qSetGlobalQHashSeed(0);
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen")
        return;
    qputenv("QT_NO_GLIB", "1"); // Qt's own loop waits in one place only
    qputenv("TZ", "UTC");
    ZavoTest::MonkeyClock::start();
}

void setAttributes()
{
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_DisableWindowContextHelpButton);
}

} // namespace

int main(int argc, char *argv[])
{
    stayInPlace(argv);
    makeRepeatable();
    setAttributes();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("seed"), QStringLiteral("First number."),
                        QStringLiteral("number"), QStringLiteral("1")},
                       {QStringLiteral("events"), QStringLiteral("How many events."),
                        QStringLiteral("count"), QStringLiteral("1000")},
                       {QStringLiteral("log"), QStringLiteral("File to write the events to."),
                        QStringLiteral("file")}});
    parser.addHelpOption();
    parser.process(application);
    std::FILE *log = nullptr;
    if (parser.isSet(QStringLiteral("log")))
        log = std::fopen(qUtf8Printable(parser.value(QStringLiteral("log"))), "w");
    ZavoTest::Monkey monkey(parser.value(QStringLiteral("seed")).toUInt(),
                            parser.value(QStringLiteral("events")).toInt(), log);
    QObject::connect(&monkey, SIGNAL(finished()), &application, SLOT(quit()), Qt::QueuedConnection);
    monkey.start();
    QApplication::exec();
    if (log)
        std::fclose(log);
    return monkey.hasFailed() ? 1 : 0;
}
