// The legend loader on any file: one entry a line, each of fixed width, and
// every lookup answers.

#include "Check.h"
#include "model/LegendTable.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

struct NoQuestion : brimo::LegendFailureQuestion {
    bool ask(const QString&, const QString&) override { return false; }
    void endProgram() override { std::abort(); }
};

QTemporaryDir& prefix() {
    static QTemporaryDir dir;
    return dir;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    QDir(prefix().path()).mkpath(QStringLiteral("drive_c/Lang"));
    QDir(prefix().path()).mkpath(QStringLiteral("dosdevices"));
    QFile::link(QStringLiteral("../drive_c"), prefix().filePath(QStringLiteral("dosdevices/c:")));
    qputenv("WINEPREFIX", QFile::encodeName(prefix().path()));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    {
        QFile file(prefix().filePath(QStringLiteral("drive_c/Lang/ZorelMsg_FRA.txt")));
        FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }
    NoQuestion question;
    brimo::LegendTable table;
    const int count = table.LoadLegends({prefix().path()}, QStringLiteral("C:\\Lang"), QStringLiteral("FRA"), question);

    // A line ends at CR LF or at CR; the last line needs no line end.
    int lines = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i)
        if (bytes[i] == '\r') ++lines;
    if (!bytes.isEmpty() && !bytes.endsWith('\r') && !bytes.endsWith("\r\n")) ++lines;
    FUZZ_CHECK(count == (bytes.isEmpty() ? -1 : lines));
    FUZZ_CHECK(table.size() >= 1);
    for (int n = 0; n <= table.size() + 1; ++n) {
        const QString text = table.GetLegends(n);
        FUZZ_CHECK(text.size() <= 255 && !text.startsWith(QLatin1Char(' ')) && !text.endsWith(QLatin1Char(' ')));
        if (n >= 1 && n <= table.size()) {
            FUZZ_CHECK(table.entry(n).code.size() == 4 && table.entry(n).text.size() == 255);
        }
    }
    return 0;
}
