#include "model/LegendTable.h"

#include "platform/Cp1252.h"
#include "platform/FileAccess.h"
#include "platform/WindowsPaths.h"

#include <algorithm>
#include <cstring>

namespace brimo {

namespace {

constexpr qsizetype kCodeWidth = 4;
constexpr qsizetype kTextColumn = 5; // 0-based: column 6
constexpr qsizetype kTextWidth = 255;

// Kept as the line has them, clipped to their widths: the blanks that pad
// a record are added when the record is asked for, not for every line read.
LegendEntry entryOfLine(const char* line, qsizetype length) {
    const qsizetype textLength = std::clamp<qsizetype>(length - kTextColumn, 0, kTextWidth);
    return {fromCp1252(line, std::min(length, kCodeWidth)), fromCp1252(line + std::min(length, kTextColumn), textLength)};
}

} // namespace

QString LegendFailureText() {
    return QStringLiteral("Une erreur non gérée est survenue dans la procédure LoadLegends().\r\n"
                          "Voulez-vous déboguer le code maintenant ?");
}

QString LegendFailureTitle() { return QStringLiteral("MainModule"); }

LegendTable::LegendTable() { reset(); }

void LegendTable::reset() { entries_.assign(1, LegendEntry{}); }

int LegendTable::LoadLegends(const WinePrefix& prefix, const QString& folder, const QString& language,
                             LegendFailureQuestion& question) {
    reset();
    QString path = folder;
    if (!path.endsWith(QLatin1Char('\\'))) path += QLatin1Char('\\');
    path += QStringLiteral("ZorelMsg_") + language + QStringLiteral(".txt");

    const auto bytes = ReadWholeFile(ToNativePath(prefix, path));
    if (bytes && !bytes->isEmpty()) {
        // A line ends at CR LF or at CR; the last line needs no line end.
        entries_.clear();
        const char* data = bytes->constData();
        const qsizetype byteCount = bytes->size();
        qsizetype begin = 0;
        while (begin < byteCount) {
            const void* cr = std::memchr(data + begin, '\r', static_cast<size_t>(byteCount - begin));
            const qsizetype end = cr ? static_cast<const char*>(cr) - data     : byteCount;
            entries_.push_back(entryOfLine(data + begin, end - begin));
            begin = end + 1;
            if (cr && begin < byteCount && data[begin] == '\n') ++begin;
        }
        return size();
    }

    if (question.ask(LegendFailureText(), LegendFailureTitle())) question.endProgram();
    reset();
    return -1;
}

LegendEntry LegendTable::entry(int n) const {
    const LegendEntry& stored = entries_.at(static_cast<size_t>(n - 1));
    return {stored.code.leftJustified(kCodeWidth, QLatin1Char(' ')), stored.text.leftJustified(kTextWidth, QLatin1Char(' '))};
}

QString LegendTable::GetLegends(int n) const {
    if (n < 1 || n > size()) return {};
    const QString& text = entries_[static_cast<size_t>(n - 1)].text;
    qsizetype b = 0, e = text.size();
    while (b < e && text.at(b) == QLatin1Char(' ')) ++b;
    while (e > b && text.at(e - 1) == QLatin1Char(' ')) --e;
    return text.mid(b, e - b);
}

} // namespace brimo
