#include "shell/Pictures.h"

#include "platform/ui/Picture.h"

namespace {

struct PictureWords {
    const char* picture;
    const char* words;
};

constexpr PictureWords rowPictures[] = {
    {"Rating0", "not rated"},        {"Rating1", "1 of 5 stars"},
    {"Rating2", "2 of 5 stars"},     {"Rating3", "3 of 5 stars"},
    {"Rating4", "4 of 5 stars"},     {"Rating5", "5 of 5 stars"},
    {"BarFull", "in stock"},         {"BarEmpty", "empty"},
    {"Lists_Library", "library"},    {"Lists_Library_Selected", "library"},
    {"Lists_UserList", "drinklist"}, {"Lists_UserList_Selected", "drinklist"},
};

} // namespace

void PreparePictures() {
    for (const PictureWords& row : rowPictures) {
        NamedPicture(QString::fromLatin1(row.picture))->SetDescription(QString::fromLatin1(row.words));
    }
    NamedPicture(QStringLiteral("SearchBoxBG"))->SetMask(*NamedPicture(QStringLiteral("SearchBoxMask")));
}
