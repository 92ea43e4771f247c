#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The values with which CParamRechTalus opens, by the design of its form: it
// loads nothing stored. The settings tool takes them for a slope key that
// Brimo.ini lacks.

#include "model/SlopeCommit.h"

#include <array>

namespace brimo {

// Text1 to Text6.
inline constexpr std::array<const char*, 6> kSlopeOpeningTexts = {"3", "2", "20", "360", "1", "6"};
inline constexpr bool kSlopeOpeningCheck1 = true;   // "polyligne"
inline constexpr bool kSlopeOpeningCheck2 = false;  // "points"
inline constexpr bool kSlopeOpeningOption2 = false; // 2D, Option1

inline SlopeControlState SlopeOpeningState() {
    SlopeControlState state;
    state.check1Ticked = kSlopeOpeningCheck1;
    state.check2Ticked = kSlopeOpeningCheck2;
    state.option2Chosen = kSlopeOpeningOption2;
    for (std::size_t i = 0; i < state.texts.size(); ++i) state.texts[i] = QString::fromLatin1(kSlopeOpeningTexts[i]);
    return state;
}

} // namespace brimo
