#pragma once

#include <string_view>

// What the fuzzer does with arbitrary bytes. Each must come back without a fault, whatever they are.

void FuzzScript(std::string_view bytes); // tokenizer and parser
void FuzzBmp(std::string_view bytes); // a picture, which is its own companion, through both loaders and drawn
void FuzzRender(std::string_view bytes); // a script loaded by the editor among the workspace's pictures
