#include "script/ScreenBuilder.h"

#include <utility>

namespace {

SLoadFailure_ BuildResources(PictureObject& picture)
{
    return picture.Load() ? SLoadFailure_ {} : picture.GetLoadFailure();
}
SLoadFailure_ BuildResources(WordObject& word)
{
    return word.SetText(std::string(word.GetText())) ? SLoadFailure_ {} : word.GetLoadFailure();
}
SLoadFailure_ BuildResources(CheckBoxObject& checkBox)
{
    return { .problem = checkBox.Build() ? LoadProblem::None : LoadProblem::EmptyText };
}
SLoadFailure_ BuildResources(SelectboxObject& selectbox)
{
    // A part whose picture is missing is no failure.
    static_cast<void>(selectbox.Build());
    return {};
}

std::string FileToBlame(const PictureObject& picture)
{
    const std::string& fileName = picture.GetFileName();
    return picture.GetLoadFailure().inCompanion ? PictureObject::CompanionOf(fileName) : fileName;
}
std::string FileToBlame(const ScreenObject&)
{
    return {};
}

} // namespace

std::string InWords(const BuildFailure& failure)
{
    const std::string object = std::string(BlockName(failure.kind)) + " " + std::to_string(failure.number);
    return object + (failure.fileName.empty() ? "" : ", " + failure.fileName) + ": " + InWords(failure.reason);
}

// A parsed object is as fresh as a new one, so that it can go into the document itself.
std::optional<BuildFailure> BuildScreen(ParsedScreen parsed, ScreenDocument& document)
{
    std::optional<BuildFailure> failure;
    VisitKinds(parsed, [&](ObjectKind kind, auto& objects, auto add) {
        for (size_t number = 0; number < objects.size(); ++number) {
            auto& object = objects[number];
            const SLoadFailure_ reason = BuildResources(*object);
            if (reason.problem != LoadProblem::None) {
                failure = BuildFailure { kind, number, FileToBlame(*object), reason };
                return false;
            }
            (document.*add)(std::move(object));
        }
        return true;
    });
    return failure;
}
