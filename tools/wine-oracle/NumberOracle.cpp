// Answers number conversions through oleaut32, for comparison with the
// program's own conversions. Run under Wine; one request a line on standard
// input, one answer a line on standard output:
//   T <text>   -> <hr8> <r8> <hr4> <r4>   (VarR8FromStr, VarR4FromStr)
//   N <r8>     -> <hr> <text>             (VarBstrFromR8)
// all with LOCALE_USER_DEFAULT and no flags. HRESULTs are 8 hex digits; a
// number is the hex of its bits (16 digits for R8, 8 for R4; 0 on failure).
// A text is UTF-8 where '%' and two hex digits stand for one byte and "%-" for
// the empty text.
#include "OracleFields.h"

#include <windows.h>
#include <oleauto.h>

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <string>

int main() {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    static char line[1 << 16];
    while (std::fgets(line, sizeof line, stdin)) {
        char kind[4] = {}, arg[sizeof line] = {};
        if (std::sscanf(line, "%3s %s", kind, arg) != 2) {
            std::printf("?\n");
        } else if (!std::strcmp(kind, "T")) {
            const std::string text = decode(arg);
            wchar_t wide[1 << 15];
            const int n = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide, 1 << 14);
            wide[n] = 0;
            double r8 = 0;
            float r4 = 0;
            const HRESULT h8 = VarR8FromStr(wide, LOCALE_USER_DEFAULT, 0, &r8);
            const HRESULT h4 = VarR4FromStr(wide, LOCALE_USER_DEFAULT, 0, &r4);
            unsigned long long b8 = 0;
            unsigned int b4 = 0;
            if (SUCCEEDED(h8)) std::memcpy(&b8, &r8, 8);
            if (SUCCEEDED(h4)) std::memcpy(&b4, &r4, 4);
            std::printf("%08lX %016llX %08lX %08X\n", static_cast<unsigned long>(h8), b8,
                        static_cast<unsigned long>(h4), b4);
        } else if (!std::strcmp(kind, "N")) {
            unsigned long long bits = std::strtoull(arg, nullptr, 16);
            double value;
            std::memcpy(&value, &bits, 8);
            BSTR out = nullptr;
            const HRESULT hr = VarBstrFromR8(value, LOCALE_USER_DEFAULT, 0, &out);
            std::string utf8;
            if (out) {
                char buffer[1024];
                const int n = WideCharToMultiByte(CP_UTF8, 0, out, SysStringLen(out), buffer, sizeof buffer, nullptr, nullptr);
                utf8.assign(buffer, n);
                SysFreeString(out);
            }
            std::printf("%08lX %s\n", static_cast<unsigned long>(hr), encode(utf8).c_str());
        } else {
            std::printf("?\n");
        }
        std::fflush(stdout);
    }
    return 0;
}
