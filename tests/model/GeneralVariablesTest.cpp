// The 51 values loaded from Brimo.ini, each as "key, kind, text" against
// tests/golden/general-variables/: every default with the kind it is held in,
// and the values of a file kept as the text read.

#include "model/GeneralVariables.h"
#include "support/Golden.h"
#include "support/ScratchPrefix.h"

#include <gtest/gtest.h>

namespace brimo {
namespace {

using test::ScratchPrefix;

const QString kIni = QStringLiteral("C:\\Zorel\\Var\\Bureau1\\Brimo.ini");

// Loads the Brimo.ini of user Bureau1 over values that are all set beforehand.
QByteArray loadedValues() {
    const InstallInfo info{WinePrefix::FromEnvironment(), {}, QStringLiteral("C:\\Zorel\\Var"), QStringLiteral("Bureau1")};
    GeneralVariables vars;
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue) vars.setText(QLatin1String(row.key), QStringLiteral("set"));
    LoadGeneralVariables(info, vars);
    const char* const kinds[] = {"text", "short", "double"};
    QByteArray dump;
    for (const GeneralVariableRow& row : kGeneralVariableCatalogue)
        dump += QByteArray(row.key) + '\t' + kinds[vars.value(QLatin1String(row.key)).index()] + '\t' +
                vars.text(QLatin1String(row.key)).toUtf8() + '\n';
    return dump;
}

TEST(GeneralVariables, MissingOrUnreadableFilesGiveEveryDefault) {
    const QByteArray garbage[] = {
        QByteArray(),
        QByteArray("\0\0\0[Brimo_Gene\0]\0x_lang=DEU", 27),
        QByteArray(10 * 1024 * 1024, 'x'),
        QByteArray("\xff\xfe[\0B\0", 6),
        QByteArray("folder"),
    };
    for (const QByteArray& bytes : garbage) {
        ScratchPrefix prefix;
        if (bytes == "folder") prefix.makeFolder(kIni); // a folder where the file should be
        else if (!bytes.isEmpty()) prefix.write(kIni, bytes);
        test::ExpectGolden(QStringLiteral("general-variables/defaults.tsv"), loadedValues());
        EXPECT_EQ(prefix.exists(kIni), !bytes.isEmpty()) << "loading never creates the file";
    }
}

// general-variables/Brimo.ini: values stay text as read, cut to 254
// characters; only an empty one takes the default; other sections are not
// read; keys and section match without regard to case.
TEST(GeneralVariables, FileValuesStayTextAsRead) {
    ScratchPrefix prefix;
    prefix.write(kIni, test::Golden(QStringLiteral("general-variables/Brimo.ini")));
    test::ExpectGolden(QStringLiteral("general-variables/from-file.tsv"), loadedValues());
}

} // namespace
} // namespace brimo
