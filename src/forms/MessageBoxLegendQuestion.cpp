#include "forms/MessageBoxLegendQuestion.h"

#include "forms/WindowServices.h"

namespace brimo {

bool MessageBoxLegendQuestion::ask(const QString& text, const QString& title) { return boxes_.AskYesNoCritical(text, title); }

} // namespace brimo
