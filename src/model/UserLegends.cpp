#include "model/UserLegends.h"

namespace brimo {

int LoadUserLegends(LegendTable& table, const InstallInfo& info, const GeneralVariables& variables,
                    LegendFailureQuestion& question) {
    return table.LoadLegends(info.prefix, LegendFolder(info), variables.text(u"x_lang"), question);
}

} // namespace brimo
