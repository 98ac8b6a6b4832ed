#include "browser/Rating.h"

#include "platform/base/Text.h"
#include "platform/ui/Picture.h"

#include <algorithm>
#include <array>

namespace {

constexpr int highestRating = 5;

// Where the zones of the ratings from 1 on begin.
constexpr int zones[] = {3, 12, 24, 36, 48};

using RatingPictures = std::array<const Picture*, highestRating + 1>;

// Looked up once: a list asks for these with every row of every fill.
const RatingPictures& Pictures() {
    static const RatingPictures pictures = [] {
        RatingPictures named{};
        for (int rating = 0; rating <= highestRating; ++rating) {
            named[static_cast<std::size_t>(rating)] = NamedPicture(QStringLiteral("Rating") + CStr(rating));
        }
        return named;
    }();
    return pictures;
}

} // namespace

int RatingAt(int x) {
    return static_cast<int>(std::upper_bound(std::begin(zones), std::end(zones), x) - std::begin(zones));
}

int PlaceOfRating(int rating) {
    return rating < 1 ? 0 : zones[std::min(rating, highestRating) - 1];
}

const Picture* RatingPicture(int userRating) {
    const bool rated = userRating >= 1 && userRating <= highestRating;
    return Pictures()[rated ? static_cast<std::size_t>(userRating) : 0];
}

int RatingOfPicture(const Picture* picture) {
    const auto found = std::find(Pictures().begin(), Pictures().end(), picture);
    return found == Pictures().end() ? 0 : static_cast<int>(found - Pictures().begin());
}
