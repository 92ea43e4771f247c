// The Wine comparisons: one scratch prefix for the whole run. Exit code 77
// (a skipped test to CTest) when Wine or the cross compiler is missing.
//
// Started with --numbers, the program answers the number protocol of
// NumberOracle.cpp with the program's own conversions instead, under the
// locale of its environment; the number tests run it as a child process,
// since the regional settings are read from the environment.

#include "WineOracle.h"

#include "platform/RegionalNumbers.h"

#include <QCoreApplication>
#include <QString>
#include <QStringDecoder>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

namespace {

unsigned errorCode(const brimo::Conversion& c) {
    if (c.error == brimo::TypeMismatch) return 0x80020005u; // DISP_E_TYPEMISMATCH
    if (c.error == brimo::Overflow) return 0x8002000Au;     // DISP_E_OVERFLOW
    return 0;
}

int answerNumbers() {
    using namespace brimo;
    std::string line;
    while (std::getline(std::cin, line)) {
        if (line.size() < 3) {
            std::printf("?\n");
            continue;
        }
        const QByteArray arg = QByteArray::fromStdString(line.substr(2));
        if (line[0] == 'T') {
            // A byte-order mark is a character of the text here.
            QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
            const QString text = utf8(winetest::decodeField(arg));
            const Conversion r8 = TextToDouble(text);
            const Conversion r4 = TextToSingle(text);
            unsigned long long b8 = 0;
            unsigned b4 = 0;
            if (r8.ok()) std::memcpy(&b8, &r8.value, 8);
            const float single = static_cast<float>(r4.value);
            if (r4.ok()) std::memcpy(&b4, &single, 4);
            std::printf("%08X %016llX %08X %08X\n", errorCode(r8), b8, errorCode(r4), b4);
        } else if (line[0] == 'N') {
            const unsigned long long bits = arg.toULongLong(nullptr, 16);
            double value;
            std::memcpy(&value, &bits, 8);
            std::printf("00000000 %s\n", winetest::encodeField(NumberToText(value).toUtf8()).constData());
        } else {
            std::printf("?\n");
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "--numbers") == 0) return answerNumbers();

    QCoreApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const QString missing = brimo::winetest::missingTools();
    if (!missing.isEmpty()) {
        std::printf("Skipped: %s\n", qPrintable(missing));
        return 77;
    }
    auto& session = brimo::winetest::WineSession::instance();
    QString error;
    if (!session.start(&error)) {
        std::printf("%s\n", qPrintable(error));
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    session.stop();
    return result;
}
