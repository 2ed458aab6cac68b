#pragma once

#include <QString>
#include <QStringList>

/// The language that the user has chosen for all starts of the program. One on the command line
/// goes before it; without either, the system's languages are followed.
namespace Zavo::LanguageChoice {

/// A name as "de" or "pt_BR"; empty if the user has made no choice.
QString stored();

/// An empty language takes the choice back.
void store(const QString &language);

/// The language of a run with these @p arguments; empty stands for the system's.
QString of(const QStringList &arguments);

/// What the speakers of @p language call it; the name itself for a language unknown here.
QString nameOf(const QString &language);

/// Lets QLocale::system() name days and dates as @p language does, unless it is the system's own,
/// whose country then counts. To be called before there is an application object. What the
/// environment says of file names is left alone.
void applyToDates(const QString &language);

} // namespace Zavo::LanguageChoice
