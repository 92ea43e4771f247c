#pragma once
// Brimo_Gene.lsp as written from the default values: the add-on's interface,
// composed by hand, line by line, independently of the program's tables.

namespace brimo::test {

extern const char* const kDefaultGeneLisp[51];

} // namespace brimo::test
