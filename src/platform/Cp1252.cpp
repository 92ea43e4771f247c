#include "platform/Cp1252.h"

#include <array>

namespace brimo {
namespace {

// Code points of the bytes 0x80 to 0x9F; 0 marks the five undefined bytes,
// which Windows passes through as the control character of the same number.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char16_t codePointOf(unsigned char byte) {
    if (byte >= 0x80 && byte <= 0x9F && kHighControls[byte - 0x80] != 0)
        return kHighControls[byte - 0x80];
    return byte;
}

struct EncodeTable {
    std::array<unsigned char, 0x10000> bytes{};
    EncodeTable() {
        bytes.fill('?');
        for (int b = 0; b < 256; ++b) bytes[codePointOf(static_cast<unsigned char>(b))] = static_cast<unsigned char>(b);
    }
};

const EncodeTable& encodeTable() {
    static const EncodeTable table;
    return table;
}

} // namespace

QByteArray toCp1252(const QString& text) {
    const auto& table = encodeTable();
    QByteArray out(text.size(), Qt::Uninitialized);
    qsizetype n = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        // A surrogate pair is one character the code page lacks: one '?'.
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) ++i;
        out[n++] = static_cast<char>(table.bytes[c.unicode()]);
    }
    out.truncate(n);
    return out;
}

QString fromCp1252(const char* data, qsizetype size) {
    QString out(size, Qt::Uninitialized);
    QChar* dst = out.data();
    for (qsizetype i = 0; i < size; ++i) dst[i] = QChar(codePointOf(static_cast<unsigned char>(data[i])));
    return out;
}

QString fromCp1252(const QByteArray& bytes) { return fromCp1252(bytes.constData(), bytes.size()); }

} // namespace brimo
