#include "Monkey.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

namespace {

void setAttributes()
{
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_DisableWindowContextHelpButton);
}

} // namespace

int main(int argc, char *argv[])
{
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
