// Answers profile reads and writes through the Windows API, for comparison
// with the program's own profile code. Run under Wine; one operation a line on
// standard input, one answer a line on standard output:
//   G <file> <section> <key>          -> <count> <value>   (GetPrivateProfileStringA,
//                                                          "" as default, size 255)
//   P <file> <section> <key> <value>  -> <result>          (WritePrivateProfileStringA)
// Fields are bytes of the ANSI code page: '%' followed by two hex digits stands
// for one byte, "%-" for the empty field; any other byte stands for itself.
#include "OracleFields.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <vector>

int main() {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    static char line[1 << 16];
    while (std::fgets(line, sizeof line, stdin)) {
        std::vector<std::string> f;
        for (char* t = std::strtok(line, " \r\n"); t; t = std::strtok(nullptr, " \r\n")) f.push_back(decode(t));
        if (f.size() == 4 && f[0] == "G") {
            char buffer[255];
            std::memset(buffer, 0, sizeof buffer);
            const DWORD n = GetPrivateProfileStringA(f[2].c_str(), f[3].c_str(), "", buffer, 255, f[1].c_str());
            std::printf("%lu %s\n", static_cast<unsigned long>(n), encode(std::string(buffer, std::strlen(buffer))).c_str());
        } else if (f.size() == 5 && f[0] == "P") {
            const BOOL ok = WritePrivateProfileStringA(f[2].c_str(), f[3].c_str(), f[4].c_str(), f[1].c_str());
            std::printf("%d\n", ok ? 1 : 0);
        } else {
            std::printf("?\n");
        }
        std::fflush(stdout);
    }
    return 0;
}
