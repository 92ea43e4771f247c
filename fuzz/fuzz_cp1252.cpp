// Windows-1252 both ways: every byte comes back, and a text goes out as one
// byte a character, '?' for what the code page lacks.

#include "Fuzz.h"
#include "platform/Cp1252.h"

static void fuzzOne(QByteArrayView data) {
    const QByteArray bytes = data.toByteArray();
    const QString text = brimo::fromCp1252(bytes);
    FUZZ_CHECK(text.size() == bytes.size());
    FUZZ_CHECK(brimo::toCp1252(text) == bytes);

    // The same bytes read as UTF-16: each character (a surrogate pair is one)
    // gives one byte, and reading that byte back gives the character or '?'.
    const QString utf16(reinterpret_cast<const QChar*>(data.data()), data.size() / 2);
    const QString back = brimo::fromCp1252(brimo::toCp1252(utf16));
    qsizetype at = 0;
    for (qsizetype i = 0; i < utf16.size(); ++i, ++at) {
        FUZZ_CHECK(at < back.size());
        const bool pair = utf16.at(i).isHighSurrogate() && i + 1 < utf16.size() && utf16.at(i + 1).isLowSurrogate();
        FUZZ_CHECK(back.at(at) == (pair ? QLatin1Char('?') : utf16.at(i)) || back.at(at) == QLatin1Char('?'));
        i += pair;
    }
    FUZZ_CHECK(at == back.size());
}
