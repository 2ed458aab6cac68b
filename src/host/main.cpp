#include "CommandLine.h"
#include "Display.h"
#include "LanguageChoice.h"
#include "Program.h"

#include <QApplication>

#include <cstdio>

namespace {

/// Sizes follow the screen by ZvSystemInfo::getDpiRatio; Qt must not scale them a second time.
void setAttributes()
{
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_DisableWindowContextHelpButton);
    // The program answers the end of a session itself.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
}

void setNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Zavo"));
    QCoreApplication::setApplicationName(QStringLiteral("zavo-schedule-editor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZAVO_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Zavo Schedule Editor"));
    QGuiApplication::setDesktopFileName(QStringLiteral("zavo-schedule-editor"));
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList words;
    for (int index = 1; index < argc; ++index)
        words.append(QString::fromLocal8Bit(argv[index]));
    if (Zavo::Display::isMissing() && !words.contains(QLatin1String("-platform"))) {
        if (!Zavo::CommandLine::isWithoutWindow(words)) {
            std::fputs("zavo-schedule-editor: there is no display; --screenshot needs none\n",
                       stderr);
            return 1;
        }
        Zavo::Display::useOffscreen();
    }
    setAttributes();
    setNames();
    Zavo::LanguageChoice::applyToDates(Zavo::LanguageChoice::of(words));
    const QApplication application(argc, argv);
    Zavo::Display::chooseFont();
    // One way out only: the editor has finished.
    QApplication::setQuitOnLastWindowClosed(false);
    Zavo::Program program(QCoreApplication::arguments());
    return program.run();
}
