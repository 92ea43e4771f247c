#include "model/KeyMeanings.h"

#include <QCoreApplication>

namespace brimo {

namespace {

struct KeyMeaningRow {
    const char* key;
    const char* meaning; // English
};

// The general keys in the order of their catalogue, then the slope keys.
constexpr KeyMeaningRow kKeyMeanings[] = {
    {"cadre_usery", QT_TRANSLATE_NOOP("KeyMeaning", "width of the user-sized frame, mm")},
    {"cadre_userx", QT_TRANSLATE_NOOP("KeyMeaning", "length of the user-sized frame, mm")},
    {"cadre_couleur", QT_TRANSLATE_NOOP("KeyMeaning", "colour number of the double frame")},
    {"cadre_decal", QT_TRANSLATE_NOOP("KeyMeaning", "offset of the double frame, mm on paper")},
    {"cadre_layer", QT_TRANSLATE_NOOP("KeyMeaning", "layer name of the frame")},
    {"x_def_ounit", QT_TRANSLATE_NOOP("KeyMeaning", "default unit in model space: 0 mm, 1 cm, 2 m")},
    {"x_def_punit", QT_TRANSLATE_NOOP("KeyMeaning", "default unit in paper space: 0 mm, 1 cm, 2 m")},
    {"x_incli", QT_TRANSLATE_NOOP("KeyMeaning", "slant of the text styles, degrees")},
    {"x_compress", QT_TRANSLATE_NOOP("KeyMeaning", "compression of the text styles")},
    {"x_ht_gc1", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC1, mm on paper")},
    {"x_ht_gc2", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC2")},
    {"x_ht_gc3", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC3")},
    {"x_ht_gc4", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC4")},
    {"x_ht_gc5", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC5")},
    {"x_ht_gc7", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC7")},
    {"x_ht_gc10", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC10")},
    {"x_ht_gc15", QT_TRANSLATE_NOOP("KeyMeaning", "height of style GC15")},
    {"x_ht_gcc", QT_TRANSLATE_NOOP("KeyMeaning", "text height of the dimension style GCC")},
    {"x_color_gcc", QT_TRANSLATE_NOOP("KeyMeaning", "colour of the dimension style GCC")},
    {"x_chtlay", QT_TRANSLATE_NOOP("KeyMeaning", "layer to use after the command: 0 the GC layers, 1 the current layer")},
    {"x_nom_bureau", QT_TRANSLATE_NOOP("KeyMeaning", "name of the office")},
    {"x_adresse_bureau", QT_TRANSLATE_NOOP("KeyMeaning", "address of the office")},
    {"x_code_bureau", QT_TRANSLATE_NOOP("KeyMeaning", "postal code of the office")},
    {"x_lieu_bureau", QT_TRANSLATE_NOOP("KeyMeaning", "town of the office")},
    {"x_tel_bureau", QT_TRANSLATE_NOOP("KeyMeaning", "telephone number of the office")},
    {"x_fax_bureau", QT_TRANSLATE_NOOP("KeyMeaning", "fax number of the office")},
    {"x_style_txt1", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC1")},
    {"x_style_txt2", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC2")},
    {"x_style_txt3", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC3")},
    {"x_style_txt4", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC4")},
    {"x_style_txt5", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC5")},
    {"x_style_txt7", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC7")},
    {"x_style_txt10", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC10")},
    {"x_style_txt15", QT_TRANSLATE_NOOP("KeyMeaning", "font of style GC15")},
    {"x_style_cot", QT_TRANSLATE_NOOP("KeyMeaning", "font of the dimension style")},
    {"x_chttt", QT_TRANSLATE_NOOP("KeyMeaning", "AutoCAD command after a style is chosen: 0 none, 1 one-line text, 2 dynamic text, 3 paragraph text")},
    {"x_lang", QT_TRANSLATE_NOOP("KeyMeaning", "language of the add-on: FRA, ENG, DEU, ITA")},
    {"affilogoKVO", QT_TRANSLATE_NOOP("KeyMeaning", "show the add-on's logo while modules load")},
    {"AffiProfil", QT_TRANSLATE_NOOP("KeyMeaning", "show the user profile of the drawing")},
    {"x_color_zm10", QT_TRANSLATE_NOOP("KeyMeaning", "default colour of Zmult 1:10")},
    {"x_color_zm20", QT_TRANSLATE_NOOP("KeyMeaning", "default colour of Zmult 1:20")},
    {"x_color_zm50", QT_TRANSLATE_NOOP("KeyMeaning", "default colour of Zmult 1:50")},
    {"x_color_zm100", QT_TRANSLATE_NOOP("KeyMeaning", "default colour of Zmult 1:100")},
    {"x_color_zm200", QT_TRANSLATE_NOOP("KeyMeaning", "default colour of Zmult 1:200")},
    {"x_color_zm500", QT_TRANSLATE_NOOP("KeyMeaning", "default colour of Zmult 1:500")},
    {"Path_Win1", QT_TRANSLATE_NOOP("KeyMeaning", "path of the Windows explorer")},
    {"Path_Win2", QT_TRANSLATE_NOOP("KeyMeaning", "path of the calculator")},
    {"Path_Win3", QT_TRANSLATE_NOOP("KeyMeaning", "path of the WordPad editor")},
    {"Path_Win4", QT_TRANSLATE_NOOP("KeyMeaning", "path of the notepad")},
    {"Path_Win6", QT_TRANSLATE_NOOP("KeyMeaning", "path of Acrobat Reader")},
    {"Path_Win5", QT_TRANSLATE_NOOP("KeyMeaning", "path of a personal program")},
    {"x_QZ_asp_dess", QT_TRANSLATE_NOOP("KeyMeaning", "drawing of the result: polyligne (a polyline) or points")},
    {"x_QZ_des_tal", QT_TRANSLATE_NOOP("KeyMeaning", "drawing of the slope: 2 (2D) or 3 (3D)")},
    {"x_QZ_tal_dh", QT_TRANSLATE_NOOP("KeyMeaning", "horizontal distance of the slope")},
    {"x_QZ_tal_dv", QT_TRANSLATE_NOOP("KeyMeaning", "vertical distance of the slope")},
    {"x_QZ_tal_max", QT_TRANSLATE_NOOP("KeyMeaning", "initial search length, m")},
    {"x_QZ_rech_360", QT_TRANSLATE_NOOP("KeyMeaning", "number of searches over 360 degrees")},
    {"x_QZ_ecart_pts", QT_TRANSLATE_NOOP("KeyMeaning", "spacing between the searches")},
    {"x_QZ_fact_flch", QT_TRANSLATE_NOOP("KeyMeaning", "scale factor of the direction arrows")},
};

} // namespace

QString KeyMeaning(const QString& key) {
    for (const KeyMeaningRow& row : kKeyMeanings)
        if (key.compare(QLatin1String(row.key), Qt::CaseInsensitive) == 0) return QCoreApplication::translate("KeyMeaning", row.meaning);
    return {};
}

} // namespace brimo
