#include "platform/headless/HeadlessDesktop.h"
#include "script/ScriptParser.h"
#include "script/ScriptWriter.h"
#include "tests/fuzz/FuzzTargets.h"
#include "tests/script/ScreenText.h"

#include <cstdlib>
#include <string>
#include <utility>

void FuzzScript(std::string_view bytes)
{
    const platform::HeadlessDesktop quiet;
    ScriptTokenizer tokens;
    ParsedScreen screen;
    if (!tokens.TokenizeText(std::string(bytes)) || !ScriptParser::ParseTokens(tokens, screen))
        return;
    // Nothing but a keyword can hold a quote, so whatever was read can be written.
    const auto objects = TakeObjects(std::move(screen));
    if (ScriptWriter::FindUnstorableText({ .objects = objects }))
        std::abort();
}
