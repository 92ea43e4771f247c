#include "model/FieldRules.h"

#include "platform/RegionalNumbers.h"

#include <cmath>

namespace brimo {

namespace {

constexpr auto Text = RuleKind::TextRule;
constexpr auto Colour = RuleKind::ColourRule;
constexpr auto Decimal = RuleKind::DecimalRule;
constexpr auto Signed = RuleKind::SignedRule;
constexpr auto Plain = RuleKind::PlainRule;

constexpr FieldRule number(const char* control, const char* key, RuleKind kind, double value) {
    return {control, key, kind, true, value, "", 0.0, ""};
}
constexpr FieldRule colour(const char* control, const char* key, double value, double limit, const char* then) {
    return {control, key, Colour, true, value, "", limit, then};
}
constexpr FieldRule text(const char* control, const char* key, const char* value) {
    return {control, key, Text, false, 0.0, value, 0.0, ""};
}

constexpr std::array<FieldRule, 38> kGeneralFieldRules = {{
    number("Val0", "cadre_usery", Decimal, 860),
    number("Val1", "cadre_userx", Decimal, 1600),
    colour("Val2", "cadre_couleur", 2, 256.0, "255"),
    number("Val3", "cadre_decal", Decimal, 5),
    text("Val4", "cadre_layer", "CADRE"),
    number("Val5", "x_incli", Signed, 0),
    number("Val6", "x_compress", Decimal, 0.7),
    number("Val7", "x_ht_gc1", Decimal, 1.5),
    number("Val8", "x_ht_gc2", Decimal, 2.5),
    number("Val9", "x_ht_gc3", Decimal, 3.5),
    number("Val10", "x_ht_gc4", Decimal, 4),
    number("Val11", "x_ht_gc5", Decimal, 5),
    number("Val12", "x_ht_gc7", Decimal, 7),
    number("Val13", "x_ht_gc10", Decimal, 10),
    number("Val14", "x_ht_gc15", Decimal, 15),
    number("Text4", "x_ht_gcc", Decimal, 3.5),
    colour("Text19", "x_color_gcc", 4, 256.0, "255"),
    text("Val15", "x_nom_bureau", "Nom du bureau"),
    text("Val16", "x_adresse_bureau", "Adresse du bureau"),
    text("Val17", "x_code_bureau", "N postal"),
    text("Val18", "x_lieu_bureau", "Ville"),
    text("Val19", "x_tel_bureau", "No de téléphone"),
    text("Val20", "x_fax_bureau", "No de fax"),
    text("Text1", "x_style_txt1", "ROMANS"),
    text("Text20", "x_style_txt2", "ROMANS"),
    text("Text21", "x_style_txt3", "ROMANS"),
    text("Text22", "x_style_txt4", "ROMANS"),
    text("Text23", "x_style_txt5", "ROMANS"),
    text("Text24", "x_style_txt7", "ROMANS"),
    text("Text25", "x_style_txt10", "ROMANS"),
    text("Text26", "x_style_txt15", "ROMANS"),
    text("Text2", "x_style_cot", "ROMANS"),
    colour("Text5", "x_color_zm10", 1, 255.0, "1"),
    colour("Text6", "x_color_zm20", 2, 255.0, "2"),
    colour("Text7", "x_color_zm50", 3, 255.0, "3"),
    colour("Text8", "x_color_zm100", 4, 255.0, "4"),
    colour("Text9", "x_color_zm200", 5, 255.0, "5"),
    colour("Text10", "x_color_zm500", 6, 255.0, "6"),
}};

constexpr std::array<FieldRule, 6> kSlopeFieldRules = {{
    number("Text1", "x_QZ_tal_dh", Plain, 3),
    number("Text2", "x_QZ_tal_dv", Plain, 2),
    number("Text3", "x_QZ_tal_max", Plain, 20),
    number("Text4", "x_QZ_rech_360", Plain, 360),
    number("Text5", "x_QZ_ecart_pts", Plain, 1),
    number("Text6", "x_QZ_fact_flch", Plain, 6),
}};

// Which steps each kind has.
bool hasLeadingPointStep(RuleKind kind) { return kind == Decimal || kind == Signed; }
bool hasAbsoluteValueStep(RuleKind kind) { return kind == Colour || kind == Decimal || kind == Plain; }
bool hasUpperLimitStep(RuleKind kind) { return kind == Colour; }

} // namespace

QString DefaultTextOf(const FieldRule& rule) {
    return rule.numericDefault ? NumberToText(rule.defaultNumber) : QString::fromUtf8(rule.defaultText);
}

LeaveOutcome ApplyLeavingRule(const FieldRule& rule, const QString& original) {
    QString text = original;
    // 1. Exactly empty: the default. A text of blanks is not empty.
    if (text.isEmpty()) text = DefaultTextOf(rule);
    if (rule.kind == Text) return {text, false};

    // 2. From here no failed conversion stops the rule.
    // 3. A leading point (the character itself): rewrite through a number.
    if (hasLeadingPointStep(rule.kind) && text.startsWith(QLatin1Char('.'))) {
        const Conversion c = TextToDouble(text);
        if (c.ok()) text = NumberToText(c.value + 0);
    }
    // 4 and 5. Only a text that is no number is refused; an overflow passes.
    if (TextToSingle(text).error == TypeMismatch) return {text, true};

    // 6. Below zero: the absolute value. A failed test counts as true.
    if (hasAbsoluteValueStep(rule.kind)) {
        const Conversion c = TextToDouble(text);
        if (!c.ok() || c.value < 0.0) {
            const Conversion again = TextToDouble(text);
            if (again.ok()) text = NumberToText(std::fabs(again.value));
        }
    }
    // 7. Above the limit: the replacement text. A failed test counts as true.
    if (hasUpperLimitStep(rule.kind)) {
        const Conversion c = TextToDouble(text);
        if (!c.ok() || c.value > rule.upperLimit) text = QString::fromUtf8(rule.replacement);
    }
    return {text, false};
}

std::span<const FieldRule> GeneralFieldRules() { return kGeneralFieldRules; }
std::span<const FieldRule> SlopeFieldRules() { return kSlopeFieldRules; }

const FieldRule* FindFieldRule(std::span<const FieldRule> rules, QAnyStringView control) {
    for (const FieldRule& rule : rules)
        if (QAnyStringView::compare(control, QLatin1String(rule.control)) == 0) return &rule;
    return nullptr;
}

} // namespace brimo
