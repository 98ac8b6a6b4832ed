#include "help/HelpTopics.h"

namespace HelpTopics {

// clang-format off
const HelpTopic Intro = {
    "Introduction to the Tipplewise Pourbook",
    "Welcome to the Tipplewise Pourbook.  This handy little application is designed to help those of us that are not "
    "professional bartenders.  Those that can be impressed with their liquor cabinet but may only know a small "
    "handful of drinks to make.  This is where the Pourbook can help."
    "\n\n"
    "The Pourbook is a great reference for cocktail recipes.  It has an easy to use interface that makes it a simple "
    "process to quickly find what you're looking for.  Where the program is really useful is when the Ingredients In "
    "Your Bar feature is utilized.  This is where you select from a list the ingredients you have in your home and "
    "the application will limit the list of recipes to only those you can make."
    "\n\n"
    "Look forward to the Pourbook expanding its feature set as well as its recipe list in the near future.",
};

const HelpTopic FindDrink = {
    "How to find a drink recipe",
    "The Tipplewise Pourbook makes finding recipes a snap.  When the application first loads up, it lists all the "
    "recipes in its database.  From there, it's up to you.  If you know the name of the cocktail, simply type it "
    "into the search box and the list of drinks will be limited to those matching your query.  Once you've found "
    "what you're looking for, select it in the list and the recipe will be displayed to the right."
    "\n\n"
    "Accessing the View menu will allow you to turn on additional drink list columns such as the type of drink or "
    "the type of serving glass.  Clicking on the column headers will sort the list to that column."
    "\n\n"
    "Use the Ingredients In Your Bar feature to help you find the drinks you can make with the ingredients in your "
    "home as well as the contents of your liquor cabinet.",
};

const HelpTopic MatchDrinks = {
    "How to find the recipes you can make",
    "One of the great features of the Tipplewise Pourbook is the ability to see only the drinks you have the "
    "ingredients to make in your own home.  To do this, first you will need to identify the ingredients in both your "
    "liquor cabinet and kitchen.  Click the button to add ingredients in the lower left portion of the application.  "
    "It is an icon of a bottle with plus and minus symbols stacked next to it."
    "\n\n"
    "Once you've opened the Ingredients In Your Bar window, you will see a list of ingredients.  Scroll down the "
    "list and select the items you have.  Some rows will be indented signifying they are grouped under a generic "
    "type.  Whiskey, for example, has Rye, Canadian, Tennessee, and more.  If you have a Whiskey that is not "
    "specifically noted, then select the generic Whiskey.  Otherwise, only select the one you have.  This will help "
    "the Pourbook accurately select the drinks you can make.  When done, click the 'Save' button."
    "\n\n"
    "After you've entered in all of your ingredients, click the checkbox above the drink list that says 'Match list "
    "of cocktails to ingredients in your bar'.  This will limit the items in the drink list to only those you can "
    "make with the ingredients you have.  ",
};

const HelpTopic InBarPanel = {
    "How to use the 'Ingredients In Your Bar' panel",
    "The Ingredients In Your Bar panel at the left displays all of the ingredients you've selected you have in your "
    "home.  If you have not already done this, see the topic 'How to find the recipes you can make with the "
    "ingredients that are in your home' for more information."
    "\n\n"
    "The list is always visible allowing easy access to mark items as empty if you've run out and can be used as a "
    "reminder of what to restock.  To mark an item empty, simply click the checkmark icon next to the appropriate "
    "ingredient to set the icon to an 'e'.  Once you've restocked, click the 'e' to set it back to normal.  The "
    "drink list will adjust to only show the recipes for the ingredients you have stocked provided the 'Match list "
    "of cocktails to ingredients in your bar' option has been selected.",
};

const HelpTopic DrinkRatings = {
    "About drink ratings",
    "Drink ratings allow you to select from 0 to 5 stars for each drink.  To use this feature, you must enable the "
    "Rating column on the drink list.  Do this by selecting 'Show Ratings Column' from the View menu.  To rate a "
    "drink, simply click the dot corresponding with the rating you wish to give it.  The dots will turn to stars.  "
    "You can also sort the drink list by the Ratings column.",
};

const HelpTopic CopyPrint = {
    "Copy, paste or print recipes",
    "Once you've found a drink recipe, you may have need to use it outside of the application whether it's with "
    "another program or printed on a piece of paper if your computer is not handy where you make the drinks.  To "
    "print, simply select the drink from the list and select the 'Print Drink Recipe' option from the File menu.  If "
    "you wish to copy and paste a recipe into another application, select the drink from the list and chose the "
    "'Copy Cocktail Recipe' option from the Edit menu.  You can then paste it into another application in textual "
    "form.",
};

const HelpTopic DrinkLists = {
    "How to use drinklist",
    "A great way to organize your favorite drinks are by using drinklists.  To create a new list, click the '+' "
    "button at the bottom left of the application.  This will create a new drinklist item called 'New Drinklist' "
    "under the 'All Drinks' drinklist.  Give it a new name and hit enter.  Now, you can simply drag and drop recipes "
    "from the main list of drinks into your new drinklist.  To remove items, go into the drinklist and select the "
    "drink you wish to remove.  Hit the delete button to remove.",
};

// clang-format on

} // namespace HelpTopics
