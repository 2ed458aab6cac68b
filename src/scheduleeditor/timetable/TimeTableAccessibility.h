#pragma once

class QString;

namespace Zavo {

class ZvTime;
class ZvTimeTableScene;
class ZvTimeTableTimeItem;
class ZvTimeTableView;

/// Shows the time table to assistive technology: the view as a list, its bands as the items of it,
/// by index. An item is named by its stage and its times, can be selected and knows where it is on
/// the screen. Nothing is made for a band before somebody asks for it, and nothing reported while
/// nobody listens.
namespace TimeTableAccessibility {

/// To be called before a view is asked for; once is enough.
void install();

/// Whether somebody listens. Without, nothing is reported.
bool isHeard();

/// "news.xml, 06:00:00 to 07:30:00". A time that is a few milliseconds short of a whole second, as
/// bands give it, is told as that second.
QString nameOf(const ZvTime &time);

/// Tells who listens that bands came or went, and which one if it is a single new one.
void reportBands(ZvTimeTableView *view, ZvTimeTableTimeItem *newBand = nullptr);

/// Tells who listens which bands are selected now.
void reportSelection(const ZvTimeTableScene &scene);

/// Tells who listens that the only selected band has other times, and so another name.
void reportMove(const ZvTimeTableScene &scene);

} // namespace TimeTableAccessibility

} // namespace Zavo
