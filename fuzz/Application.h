#pragma once

namespace ZavoFuzz {

/// Makes the application, without a display, before the first input. It lives to the end.
void startApplication();

} // namespace ZavoFuzz
