#include "platform/Texts.h"

namespace brask {

std::string Texts::Fill(const TextRow& row,
                        std::initializer_list<std::string_view> arguments) const {
    const std::string wording = Find(row);
    std::string filled;
    for (std::size_t i = 0; i < wording.size(); ++i) {
        // One pass over the wording, never over what was filled in: a path may hold "%1" itself.
        const bool place = wording[i] == '%' && i + 1 < wording.size() && wording[i + 1] >= '1' &&
                           wording[i + 1] <= '9';
        const auto number = place ? static_cast<std::size_t>(wording[i + 1] - '1') : 0;
        if (!place || number >= arguments.size()) {
            filled += wording[i];
            continue;
        }
        filled += arguments.begin()[number];
        ++i;
    }
    return filled;
}

}  // namespace brask
