// How the profile file costs grow with the size of Brimo.ini: the 51 reads of
// one load, one key write and one commit, against a plain read and a plain
// copy of the same file. Sizes in MB: 1, 10, 100; section Brimo_Gene last.

#include "platform/FileAccess.h"
#include "platform/ProfileFile.h"
#include "model/GeneLispCatalogue.h"
#include "model/GeneralVariables.h"
#include "model/VariableCommit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <map>

namespace brimo {
namespace {

struct Prefix {
    QTemporaryDir dir;
    Prefix() {
        QDir(dir.path()).mkpath("drive_c/Var/U");
        QDir(dir.path()).mkpath("dosdevices");
        QFile::link("../drive_c", dir.path() + "/dosdevices/c:");
        qputenv("WINEPREFIX", QFile::encodeName(dir.path()));
    }
    QString native(const char* name) const { return dir.path() + "/drive_c/Var/U/" + name; }
};

Prefix& prefix() {
    static Prefix instance;
    return instance;
}

InstallInfo info() {
    InstallInfo i;
    i.prefix = WinePrefix::FromEnvironment();
    i.Variables = QStringLiteral("C:\\Var");
    i.actuel = QStringLiteral("U");
    return i;
}

QByteArray makeIni(qsizetype megabytes) {
    QByteArray out;
    out.reserve(megabytes * 1024 * 1024 + 8192);
    for (int section = 0; out.size() < megabytes * 1024 * 1024; ++section) {
        out += "[Section_" + QByteArray::number(section) + "]\r\n";
        for (int key = 0; key < 20; ++key)
            out += "key_" + QByteArray::number(key) + " = some value of a key " + QByteArray::number(section) + "\r\n";
        out += "\r\n";
    }
    out += "[Brimo_Gene]\r\n";
    for (const GeneralVariableRow& entry : kGeneralVariableCatalogue) out += QByteArray(entry.key) + "=1\r\n";
    return out;
}

// The file of each size, made once and restored before each write.
const QByteArray& iniOf(qsizetype megabytes) {
    static std::map<qsizetype, QByteArray> made;
    auto it = made.find(megabytes);
    if (it == made.end()) it = made.emplace(megabytes, makeIni(megabytes)).first;
    return it->second;
}

void putIni(qsizetype megabytes) {
    QFile file(prefix().native("Brimo.ini"));
    file.open(QIODevice::WriteOnly);
    file.write(iniOf(megabytes));
}

void setBytes(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * iniOf(state.range(0)).size());
}

void BM_PlainRead(benchmark::State& state) {
    putIni(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(ReadWholeFile(prefix().native("Brimo.ini")));
    setBytes(state);
}

void BM_LoadGeneralVariables(benchmark::State& state) {
    putIni(state.range(0));
    GeneralVariables variables;
    for (auto _ : state) LoadGeneralVariables(info(), variables);
    setBytes(state);
}

void BM_PlainCopy(benchmark::State& state) {
    putIni(state.range(0));
    for (auto _ : state) {
        QFile::remove(prefix().native("copy.ini"));
        QFile::copy(prefix().native("Brimo.ini"), prefix().native("copy.ini"));
    }
    setBytes(state);
}

void BM_WriteOneKey(benchmark::State& state) {
    putIni(state.range(0));
    int n = 0;
    for (auto _ : state)
        WritePrivateProfileString(info().prefix, QStringLiteral("Brimo_Gene"), QStringLiteral("x_ht_gc1"), QString::number(++n),
                                  BrimoIniPath(info()));
    setBytes(state);
}

void BM_CommitGeneral(benchmark::State& state) {
    putIni(state.range(0));
    const GeneralVariables defaults;
    QList<CommittedRow> rows;
    for (const GeneLispRow& row : kGeneLispCatalogue) {
        const QString value = defaults.text(QLatin1String(row.variable));
        rows.append({GeneLispLine(row, value).value_or(QString()), QString::fromLatin1(row.lispName), value});
    }
    int n = 0;
    for (auto _ : state) {
        rows[9].value = QString::number(++n);
        CommitVariables(info().prefix, GeneLispPath(info()), BrimoIniPath(info()), QStringLiteral("Brimo_Gene"), rows);
    }
    setBytes(state);
}

#define SIZES Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->MinTime(0.5)
BENCHMARK(BM_PlainRead)->SIZES;
BENCHMARK(BM_LoadGeneralVariables)->SIZES;
BENCHMARK(BM_PlainCopy)->SIZES;
BENCHMARK(BM_WriteOneKey)->SIZES;
BENCHMARK(BM_CommitGeneral)->SIZES;

} // namespace
} // namespace brimo

BENCHMARK_MAIN();
