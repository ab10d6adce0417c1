#pragma once

#include <string_view>

// What the fuzzer does with arbitrary bytes. Each must come back without a fault, whatever they are.

void FuzzScript(std::string_view bytes); // tokenizer, parser and writer
void FuzzBmp(std::string_view bytes); // both BMP loaders and drawing
void FuzzRender(std::string_view bytes); // a script's objects in the document, with the workspace's pictures
