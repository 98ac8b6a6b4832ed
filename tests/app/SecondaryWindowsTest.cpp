#include "PourbookFixture.h"
#include "bar/IngredientRecommendations.h"
#include "help/Help.h"
#include "help/VersionText.h"

#include <QTest>

using SecondaryWindowsTest = PourbookTest;

TEST_F(SecondaryWindowsTest, RecommendationsNameWhatRecipesCallForAndTheBarLacksMostUsedFirst) {
    GivenEmptyLibrary();
    Execute("INSERT INTO Ingredients (IngredientID, IngredientParentID, IngredientName, InBar, Empty) VALUES "
            "(1, NULL, 'Whiskey', 0, 0), (2, 1, 'Rye', 1, 0), (3, NULL, 'Lime', 1, 1), (4, NULL, 'O''Syrup', NULL, 0), "
            "(5, NULL, 'Unused', 0, 0)");
    Execute("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep, Required) VALUES "
            "(1, 1, 1, 1), (1, 2, 2, 1), (1, 3, 3, 1), (1, 4, 4, 0), (2, 4, 1, 1), (2, 99, 2, 1)");
    Start();
    Choose("Ingredients_Recommend");
    auto& window = IngredientRecommendations::Instance();
    EXPECT_EQ(window.IngredientNames.Text(), "O'Syrup\nWhiskey\n");
    EXPECT_EQ(window.Top(), Window().Top() + 100);
    EXPECT_EQ(window.Left(), Window().Left() + (Window().Width() - 298) / 2);
    // The text is renewed by the command.
    Execute("UPDATE Ingredients SET InBar = 1");
    Choose("Ingredients_Recommend");
    EXPECT_EQ(window.IngredientNames.Text(), "");
}

TEST_F(SecondaryWindowsTest, HelpShowsEachTopicAndComesBackToTheList) {
    Start();
    Choose("Help_Pourbook");
    auto& help = Help::Instance();
    const auto click = [&help](const StaticText& label) {
        QTest::mouseClick(help.Widget()->findChild<QWidget*>(label.Name()), Qt::LeftButton);
    };
    for (const StaticText* label : {&help.Intro, &help.FindDrink, &help.MatchDrinks, &help.InBarPanel,
                                    &help.DrinkRatings, &help.CopyPrint, &help.DrinkLists}) {
        click(*label);
        const QString caption = help.TopicCaption.Text();
        EXPECT_TRUE(label->Text().startsWith(caption)) << caption;
        EXPECT_TRUE(help.HelpInfo.Visible() && !help.Topics.Visible()) << caption;
        const auto* shown = help.Widget()->findChild<QWidget*>("HelpText");
        EXPECT_LE(shown->heightForWidth(shown->width()) - shown->contentsMargins().bottom(), shown->height())
            << caption << " is cut off";
        EXPECT_EQ(shown->mapTo(help.Widget(), QPoint()), QPoint(321, 86));
        click(help.Back);
        EXPECT_TRUE(help.Topics.Visible() && !help.HelpInfo.Visible()) << caption;
        EXPECT_EQ(help.TopicCaption.Text(), "Select a help topic from the list below");
    }
}

TEST(VersionText, TellsTheStageOfWhatIsNotAFinalRelease) {
    EXPECT_EQ(VersionText({1, 2, 0, 0, 3}), "Version 1.2.0 In Development");
    EXPECT_EQ(VersionText({1, 2, 0, 1, 3}), "Version 1.2.0 Alpha 3");
    EXPECT_EQ(VersionText({10, 0, 4, 2, 1}), "Version 10.0.4 Beta 1");
    EXPECT_EQ(VersionText({1, 2, 0, 3, 3}), "Version 1.2.0");
}
