#pragma once
// What the fuzz targets share. Each defines fuzzOne(), which gets the input
// as it stands in libFuzzer's buffer; a broken invariant is a crash, so that
// libFuzzer keeps the input.

#include <QByteArrayView>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#define FUZZ_CHECK(condition) \
    ((condition) ? void() : (std::fprintf(stderr, "%s:%d: invariant broken: %s\n", __FILE__, __LINE__, #condition), std::abort()))

static void fuzzOne(QByteArrayView data);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzzOne(QByteArrayView(data, static_cast<qsizetype>(size)));
    return 0;
}

// A Wine prefix of the run with the given folders of drive C:, made the
// WINEPREFIX; call once, from a static.
inline QString MakeFuzzPrefix(std::initializer_list<const char*> folders) {
    static QTemporaryDir dir;
    QDir root(dir.path());
    for (const char* folder : folders) root.mkpath(QStringLiteral("drive_c/") + QLatin1String(folder));
    root.mkpath(QStringLiteral("dosdevices"));
    QFile::link(QStringLiteral("../drive_c"), root.filePath(QStringLiteral("dosdevices/c:")));
    qputenv("WINEPREFIX", QFile::encodeName(dir.path()));
    return dir.path();
}
