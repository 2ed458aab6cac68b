#include "Application.h"

#include <QApplication>

namespace ZavoFuzz {

void startApplication()
{
    static int argumentCount = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.debug=false");
    new QApplication(argumentCount, arguments);
}

} // namespace ZavoFuzz
