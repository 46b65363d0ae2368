// The block in the user's shell and SSH files: its removal restores every byte.
#include "fuzz/Require.h"

#include "terminal/MarkedBlock.h"

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = bytesOf(data, size);
    for (const auto position : {MarkedBlock::Position::atEnd, MarkedBlock::Position::atStart}) {
        MarkedBlock::removed(text, position, {true, true});
        const auto addition = MarkedBlock::added(text, "body", position);
        if (MarkedBlock::hasStart(text)) {
            REQUIRE(addition.text == text);
            continue;
        }
        REQUIRE(MarkedBlock::hasStart(addition.text));
        REQUIRE(MarkedBlock::removed(addition.text, position, addition.inserted) == text);
    }
    return 0;
}
