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

QByteArray utf8ToCp1252(QByteArrayView text, qsizetype begin, qsizetype end) {
    const auto& table = encodeTable();
    QByteArray out;
    out.reserve(end - begin);
    qsizetype i = begin;
    while (i < end) {
        const auto lead = static_cast<unsigned char>(text[i++]);
        if (lead < 0x80) {
            out += static_cast<char>(lead);
            continue;
        }
        const int more = lead >= 0xC2 && lead <= 0xDF ? 1 : lead >= 0xE0 && lead <= 0xEF ? 2 : lead >= 0xF0 && lead <= 0xF4 ? 3 : 0;
        if (more == 0) {
            out += '?';
            continue;
        }
        if (i + more > text.size()) {
            out += '?';
            break;
        }
        // A byte that continues nothing ends the sequence and starts the next
        // character. The second byte's range also rules out overlong forms,
        // the surrogates and the code points past U+10FFFF; a second byte out
        // of it is taken into the one '?' with the lead.
        const unsigned char low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
        const unsigned char high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
        char32_t code = lead & (0x3F >> more);
        bool whole = true;
        for (int k = 0; k < more && whole; ++k) {
            const auto c = static_cast<unsigned char>(text[i]);
            if ((c & 0xC0) != 0x80) {
                whole = false;
            } else {
                ++i;
                code = (code << 6) | (c & 0x3F);
                whole = k > 0 || (c >= low && c <= high);
            }
        }
        if (!whole) out += '?';
        else if (code > 0xFFFF) out += "??";
        else out += static_cast<char>(table.bytes[code]);
    }
    return out;
}

QByteArray cp1252ToUtf8(QByteArrayView bytes) { return fromCp1252(bytes.data(), bytes.size()).toUtf8(); }

} // namespace brimo
