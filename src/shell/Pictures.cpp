#include "shell/Pictures.h"

#include "platform/ui/Picture.h"

namespace {

struct PictureWords {
    const char* picture;
    const char* words;
};

constexpr PictureWords pictureWords[] = {
    {"Rating0", "not rated"},
    {"Rating1", "1 of 5 stars"},
    {"Rating2", "2 of 5 stars"},
    {"Rating3", "3 of 5 stars"},
    {"Rating4", "4 of 5 stars"},
    {"Rating5", "5 of 5 stars"},
    {"BarFull", "in stock"},
    {"BarEmpty", "empty"},
    {"Lists_Library", "library"},
    {"Lists_Library_Selected", "library"},
    {"Lists_UserList", "drinklist"},
    {"Lists_UserList_Selected", "drinklist"},
    {"Glass_BeerMug", "beer mug"},
    {"Glass_BeerPilsner", "pilsner glass"},
    {"Glass_BrandySnifter", "brandy snifter"},
    {"Glass_ChampagneFlute", "champagne flute"},
    {"Glass_Cocktail", "cocktail glass"},
    {"Glass_CoffeeMug", "coffee mug"},
    {"Glass_Collins", "collins glass"},
    {"Glass_Cordial", "cordial glass"},
    {"Glass_Highball", "highball glass"},
    {"Glass_Margarita", "margarita glass"},
    {"Glass_OldFashioned", "old-fashioned glass"},
    {"Glass_Parfait", "parfait glass"},
    {"Glass_RedWine", "red wine glass"},
    {"Glass_Shot", "shot glass"},
    {"Glass_WhiskeySour", "whiskey sour glass"},
    {"Glass_WhiteWine", "white wine glass"},
};

} // namespace

void PreparePictures() {
    for (const PictureWords& row : pictureWords) {
        NamedPicture(QString::fromLatin1(row.picture))->SetDescription(QString::fromLatin1(row.words));
    }
    NamedPicture(QStringLiteral("SearchBoxBG"))->SetMask(*NamedPicture(QStringLiteral("SearchBoxMask")));
}
