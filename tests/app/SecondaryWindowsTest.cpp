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

    // The text is a snapshot, renewed by the command; a failure leaves it as it is.
    Execute("UPDATE Ingredients SET InBar = 1");
    Choose("Ingredients_Recommend");
    EXPECT_EQ(window.IngredientNames.Text(), "");
    Execute("DROP TABLE DrinkRecipes");
    AnswerNextMessage();
    Choose("Ingredients_Recommend");
    EXPECT_EQ(LastMessage().text, "Could not query the database for ingredients:  no such table: DrinkRecipes");
}

TEST_F(SecondaryWindowsTest, HelpShowsEachTopicAndComesBackToTheList) {
    Start();
    Choose("Help_Pourbook");
    auto& help = Help::Instance();
    const auto click = [&help](const StaticText& label) {
        QTest::mouseClick(help.Widget()->findChild<QWidget*>(label.Name()), Qt::LeftButton);
    };
    const std::tuple<StaticText&, const char*, const char*> topics[] = {
        {help.Intro, "Introduction to the Tipplewise Pourbook", "near future."},
        {help.FindDrink, "How to find a drink recipe", "contents of your liquor cabinet."},
        {help.MatchDrinks, "How to find the recipes you can make", "with the ingredients you have.  "},
        {help.InBarPanel, "How to use the 'Ingredients In Your Bar' panel", "option has been selected."},
        {help.DrinkRatings, "About drink ratings", "by the Ratings column."},
        {help.CopyPrint, "Copy, paste or print recipes", "in textual form."},
        {help.DrinkLists, "How to use drinklist", "Hit the delete button to remove."},
    };
    for (const auto& [label, caption, end] : topics) {
        click(label);
        EXPECT_EQ(help.TopicCaption.Text(), caption);
        EXPECT_TRUE(help.HelpText.Text().endsWith(end)) << caption;
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
