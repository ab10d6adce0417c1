#include "gfx/LoadFailure.h"

namespace {

std::string ProblemInWords(const SLoadFailure_& failure)
{
    switch (failure.problem) {
    case LoadProblem::None:
        break;
    case LoadProblem::NameWithoutBmp:
        return "no \".bmp\" in its name";
    case LoadProblem::EmptyText:
        return "empty text";
    case LoadProblem::NoSuchFile:
        return "no such file";
    case LoadProblem::Unreadable:
        return "cannot be read";
    case LoadProblem::NotBmp:
        return "not a BMP";
    case LoadProblem::OldHeader:
        return "a header of 12 bytes; 40 are needed";
    case LoadProblem::Depth:
        return std::to_string(failure.bitsPerPixel) + " bits a pixel; 8 are needed";
    case LoadProblem::Compressed:
        return "compressed";
    case LoadProblem::TopDown:
        return "rows stored top first";
    case LoadProblem::BadSize:
        return "not 1 to 65535 pixels on each side";
    case LoadProblem::BadHeader:
        return "damaged headers";
    case LoadProblem::CutShort:
        return "cut short";
    case LoadProblem::OtherSize:
        return "not as large as the picture";
    case LoadProblem::TooLarge:
        return "too large for the memory";
    }
    return "";
}

} // namespace

std::string InWords(const SLoadFailure_& failure)
{
    return (failure.inCompanion ? "companion: " : "") + ProblemInWords(failure);
}
