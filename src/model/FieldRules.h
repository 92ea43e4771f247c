#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The rules of the text fields that carry a value: every field selects its
// whole text when it receives the focus, and repairs or refuses its text when
// it loses it. Each field is one row of a table; five kinds of leaving rule.

#include <QString>

#include <array>
#include <span>

namespace brimo {

enum class RuleKind { TextRule, ColourRule, DecimalRule, SignedRule, PlainRule };

struct FieldRule {
    const char* control;    // the field's name on its form
    const char* key;        // the variable it shows
    RuleKind kind;
    bool numericDefault;    // a number, rendered by NumberToText when written
    double defaultNumber;
    const char* defaultText; // a literal text default, UTF-8
    double upperLimit;       // ColourRule only
    const char* replacement; // ColourRule only: the text above the limit
};

// What leaving a field does to its text.
struct LeaveOutcome {
    QString text;          // the field's text afterwards
    bool refused = false;  // the text is no number: show the refusal, focus back
};

// Steps 1 to 7 of the leaving rule; pure: the caller shows the refusal.
LeaveOutcome ApplyLeavingRule(const FieldRule& rule, const QString& text);

// The text that replaces an empty field.
QString DefaultTextOf(const FieldRule& rule);

// The 38 fields of CGeneralForm, in the order of the commit's keys.
std::span<const FieldRule> GeneralFieldRules();
// The six fields of CParamRechTalus.
std::span<const FieldRule> SlopeFieldRules();
// The row of a control, or nullptr.
const FieldRule* FindFieldRule(std::span<const FieldRule> rules, QAnyStringView control);

} // namespace brimo
