// The field encoding of the reference programs' requests and answers: bytes
// as they are, but '%' followed by two hex digits for a byte that is no
// printable ASCII (or is '%'), and "%-" for the empty field.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

static std::string decode(const std::string& field) {
    if (field == "%-") return {};
    std::string out;
    for (size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '%' && i + 2 < field.size()) {
            out += static_cast<char>(std::strtol(field.substr(i + 1, 2).c_str(), nullptr, 16));
            i += 2;
        } else {
            out += field[i];
        }
    }
    return out;
}

static std::string encode(const std::string& bytes) {
    if (bytes.empty()) return "%-";
    std::string out;
    for (unsigned char c : bytes) {
        char hex[4];
        std::snprintf(hex, sizeof hex, "%%%02X", c);
        out += (c > 0x20 && c < 0x7F && c != '%') ? std::string(1, static_cast<char>(c)) : std::string(hex);
    }
    return out;
}
