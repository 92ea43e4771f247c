#pragma once
// The words of CGeneralForm that come from legends: the caption table of each
// tab, the three buttons that only the load step names, and the two tab
// sweeps that set the tab captions.

#include "model/GeneralVariableCatalogue.h"

#include <cstddef>
#include <span>

namespace brimo {

// One caption: the control, and the legend whose text it takes.
struct CaptionRow {
    const char* control;
    int legend;
};

// The caption table of a tab (0 to 5), rows in the order of assignment;
// empty for any other number.
std::span<const CaptionRow> TabCaptionTable(int tab);

// Command7, cmdAbout and CmdCancel: named by Form_Load alone.
std::span<const CaptionRow> LoadButtonCaptions();

// One step of a sweep: make the tab current, then give it its caption.
struct SweepStep {
    int tab;
    int legend;
};

// The sweep of Form_Load: tabs 0 to 5.
std::span<const SweepStep> LoadTabSweep();
// The sweep of the language switch: tab 5 before tab 4, so that it ends on
// the tab that holds the language options.
std::span<const SweepStep> LanguageTabSweep();

// The options of Option5, one a choice of x_lang (whose rows say which
// language each selects).
inline constexpr std::size_t kLanguageOptionCount = [] {
    std::size_t count = 0;
    for (const GeneralChoice& choice : kGeneralChoices) count += SameName(choice.key, "x_lang");
    return count;
}();

} // namespace brimo
