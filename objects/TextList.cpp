#include "objects/TextList.h"

void TextList::Remove(size_t index)
{
    const size_t length = Length(index);
    bytes.erase(Start(index), length);
    ends.erase(ends.begin() + static_cast<std::ptrdiff_t>(index));
    for (size_t later = index; later < ends.size(); ++later)
        ends[later] -= length;
}
