#include "browser/GlassPicture.h"

#include "platform/base/Text.h"
#include "platform/ui/Picture.h"

namespace {

struct Glass {
    const char* typeName;
    const char* picture;
};

constexpr Glass glasses[] = {
    {"Shot", "Glass_Shot"},
    {"Cocktail", "Glass_Cocktail"},
    {"Old-Fashioned", "Glass_OldFashioned"},
    {"HighBall", "Glass_Highball"},
    {"Collins", "Glass_Collins"},
    {"Cordial", "Glass_Cordial"},
    {"Champagne Flute", "Glass_ChampagneFlute"},
    {"Brandy Snifter", "Glass_BrandySnifter"},
    {"Beer Mug", "Glass_BeerMug"},
    {"Coffee Mug", "Glass_CoffeeMug"},
    {"Beer Pilsner", "Glass_BeerPilsner"},
    {"Margarita", "Glass_Margarita"},
    {"Parfait", "Glass_Parfait"},
    {"Red Wine", "Glass_RedWine"},
    {"Whiskey Sour", "Glass_WhiskeySour"},
    {"White Wine", "Glass_WhiteWine"},
};

} // namespace

const Picture* GlassPicture(const QString& glassTypeName) {
    for (const Glass& glass : glasses) {
        if (SameText(glassTypeName, QString::fromLatin1(glass.typeName))) {
            return NamedPicture(QString::fromLatin1(glass.picture));
        }
    }
    return nullptr;
}
