// The legend loader on any file: one entry a line, each of fixed width, and
// every lookup answers.

#include "Fuzz.h"
#include "model/LegendTable.h"

namespace {
struct NoQuestion : brimo::LegendFailureQuestion {
    bool ask(const QString&, const QString&) override { return false; }
    void endProgram() override { std::abort(); }
};
} // namespace

static void fuzzOne(QByteArrayView bytes) {
    static const QString prefix = MakeFuzzPrefix({"Lang"});
    {
        QFile file(prefix + QStringLiteral("/drive_c/Lang/ZorelMsg_FRA.txt"));
        FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes.data(), bytes.size());
    }
    NoQuestion question;
    brimo::LegendTable table;
    const int count = table.LoadLegends({prefix}, QStringLiteral("C:\\Lang"), QStringLiteral("FRA"), question);

    // A line ends at CR LF or at CR; the last line needs no line end.
    const int lines = int(bytes.count('\r')) + (!bytes.isEmpty() && !bytes.endsWith('\r') && !bytes.endsWith("\r\n"));
    FUZZ_CHECK(count == (bytes.isEmpty() ? -1 : lines));
    FUZZ_CHECK(table.size() >= 1);
    for (int n = 0; n <= table.size() + 1; ++n) {
        const QString text = table.GetLegends(n);
        FUZZ_CHECK(text.size() <= 255 && !text.startsWith(QLatin1Char(' ')) && !text.endsWith(QLatin1Char(' ')));
        if (n >= 1 && n <= table.size()) FUZZ_CHECK(table.entry(n).code.size() == 4 && table.entry(n).text.size() == 255);
    }
}
