#pragma once

class Picture;

// The stars of a drink, 0 to 5.

// The rating that a click sets, by its distance in pixels from the left edge of the rating cell. The edge itself
// clears the rating; from there each zone is 12 pixels wide, as the stars in the pictures stand.
[[nodiscard]] int RatingAt(int x);

// Where a click sets this rating, 0 to 5: RatingAt of it is the rating.
[[nodiscard]] int PlaceOfRating(int rating);

// The picture of a rating as it is stored. Anything but 1 to 5 shows no star.
[[nodiscard]] const Picture* RatingPicture(int userRating);

// The stars that a picture shows; 0 for a picture that is no rating, and for null.
[[nodiscard]] int RatingOfPicture(const Picture* picture);
