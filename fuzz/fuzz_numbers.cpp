// The regional number conversions, under the locale of the run (scripts/fuzz.sh
// runs this target under a point and under a comma locale): a text is a
// number, a refusal or an overflow; a number read is finite and fits its
// type; a number written in the regional form reads back to 15 digits.

#include "Fuzz.h"
#include "platform/RegionalNumbers.h"

#include <cmath>
#include <cstring>

static void checkRoundTrip(double number) {
    const QString text = brimo::NumberToText(number);
    FUZZ_CHECK(!text.isEmpty());
    const double magnitude = std::fabs(number);
    // Beyond this range the text keeps a point whatever the locale.
    if (number != 0 && (magnitude < 1e-4 || magnitude >= 1e15)) return;
    const brimo::Conversion back = brimo::TextToDouble(text);
    FUZZ_CHECK(back.ok() && std::fabs(back.value - number) <= magnitude * 1e-14);
}

static void fuzzOne(QByteArrayView data) {
    const QString text = QString::fromUtf8(data);
    const brimo::Conversion asDouble = brimo::TextToDouble(text), asSingle = brimo::TextToSingle(text);
    for (const brimo::Conversion& c : {asDouble, asSingle})
        FUZZ_CHECK(c.error == 0 || c.error == brimo::TypeMismatch || c.error == brimo::Overflow);
    if (asDouble.ok()) FUZZ_CHECK(std::isfinite(asDouble.value));
    if (asDouble.ok()) checkRoundTrip(asDouble.value);
    if (asSingle.ok()) FUZZ_CHECK(std::isfinite(static_cast<float>(asSingle.value)));
    // A refusal does not depend on the type: a text is a number for both or neither.
    FUZZ_CHECK((asDouble.error == brimo::TypeMismatch) == (asSingle.error == brimo::TypeMismatch));

    if (data.size() >= qsizetype(sizeof(double))) {
        double number;
        std::memcpy(&number, data.data(), sizeof number);
        if (std::isfinite(number)) checkRoundTrip(number);
    }
}
