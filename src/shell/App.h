#pragma once

#include "platform/database/Database.h"
#include "platform/ui/Application.h"

#include <QString>

class FolderItem;
class InternetHeaders;
// The application object: the values that outlive one operation, and every operation on the drink store.
//
// The class is one; each method is defined in the folder of its subsystem, in the file named for the job. A method
// with a Boolean result returns true when the work was done; on false it has told the user, and the caller stops
// without a further word. No database connection outlives a method.
class App : public Application {
public:
    // The site is fixed at build time. Without one nothing is ever fetched.
    explicit App(QString vendorSite = {});

    // The one application object.
    static App& Instance();

    // The product's name: title of the main window and name of the user's data folder.
    const QString DrinkAppName;

    // The host of the vendor's web site, with its port if it needs one. The version file and the download page are
    // there.
    const QString VendorSite;

    // A developer's switch, fixed at build time: work on a plain "drinkdb.rsd" in the current folder.
    static constexpr bool InDevelopment = false;

    // False until the application is activated. Until then the change handlers of the lists and of the search box
    // ignore what start-up does to their controls.
    bool AppLoaded = false;

    // False for a build whose executable ends in "exe", which keeps its files elsewhere.
    bool OnMac = true;

    // The option codes as they were read from the Setup row. The flags are what counts afterwards.
    QString UserOptions;
    const QString OptionCode_ViewRatings = QStringLiteral("V01");
    const QString OptionCode_ViewGlass = QStringLiteral("V02");
    const QString OptionCode_ViewDrinkType = QStringLiteral("V03");
    const QString OptionCode_CheckForAppUpdates = QStringLiteral("V04");
    const QString OptionCode_ShareRatings = QStringLiteral("V05");
    bool Option_ViewRatings = false;
    bool Option_ViewGlass = false;
    bool Option_ViewDrinkType = false;
    bool Option_CheckForAppUpdates = false;
    bool Option_ShareRatings = false;

    // The menu items whose captions change.
    [[nodiscard]] MenuItem& View_RatingsColumn() const;
    [[nodiscard]] MenuItem& View_DrinkTypeColumn() const;
    [[nodiscard]] MenuItem& View_GlassColumn() const;
    [[nodiscard]] MenuItem& Window_Zoom() const;

    // The operations. Handlers of menu items carry their item's name after an underscore.
    // NOLINTBEGIN(bugprone-reserved-identifier)

    // store/
    // Connects a new database object to the user's file. The caller closes it.
    [[nodiscard]] bool GetDatabase(REALSQLDatabase& db);
    // Gives a user without a data folder a copy of the seed database.
    void ProvisionDatabase();
    // The option codes of the flags that are on, as the Setup row keeps them.
    [[nodiscard]] QString EncodeOptions() const;
    // Sets the flags, and the captions of the View menu, from UserOptions.
    void DecodeOptions();
    // Moves what is the user's own from a file of another version to a fresh copy of the seed database. Ends the
    // program on every failure.
    void UpgradeDBtoVersion2();

    // shell/
    void InitApp();
    // Binds the menu items to their handlers. Once, before the event loop starts.
    void _ApplicationAddMenuHandlers();

    // browser/
    [[nodiscard]] bool FillDrinkList();
    void SetupDrinkList();
    void ShowDrinkInfo(int DrinkID);
    void ClearDrinkInfo();
    void SetRating(int DrinkID, int Rating);
    bool _View_RatingsColumn_Action();
    bool _View_DrinkTypeColumn_Action();
    bool _View_GlassColumn_Action();
    bool _File_Print_Action();
    bool _Edit_CopyRecipe_Action();
    bool _Window_Minimize_Action();
    bool _Window_Zoom_Action();

    // bar/
    [[nodiscard]] bool FillInBarList();
    [[nodiscard]] bool ChangeEmptyStatus(int IngredientID, bool Empty);
    [[nodiscard]] bool ChangeInBarStatus(int IngredientID, bool InBar);
    void ShowIngredientsWindow();
    void SaveIngredientsWindow();
    void ShowIngredientRecommendations();
    bool _Ingredients_AddRemove_Action();
    bool _Ingredients_Recommend_Action();

    // drinklists/
    [[nodiscard]] bool FillDrinkListsList();
    // Stores the name of a list. The id is 0 for a new list, and then becomes the one that the database gave.
    [[nodiscard]] bool UpdateDrinkLists(const QString& DrinkListName, int& DrinkListID);
    [[nodiscard]] bool DeleteDrinkList(int DrinkListID);
    [[nodiscard]] bool AddToDrinkList(int DrinkListID, int DrinkID);
    // True also when the drink was not in the list.
    [[nodiscard]] bool DeleteFromDrinkList(int DrinkListID, int DrinkID);
    bool _File_NewDrinklist_Action();
    bool _File_DeleteList_Action();

    // recipes/
    void ShowNewRecipeWindow();
    // Saves what stands in the NewRecipe window.
    void SaveNewDrinkRecipe();
    [[nodiscard]] bool DeleteDrink(int DrinkID);
    // The drinks that are selected in the list, up to the first that fails. The list is not refilled.
    [[nodiscard]] bool DeleteSelectedDrinks();
    bool _File_NewDrink_Action();
    bool _File_DeleteDrink_Action();

    // updates/
    // Asks the vendor's web site for the latest version and shows a notice if it is newer than this one. The user works
    // on meanwhile, and hears of no failure. The day is stored in any case.
    void CheckForNewVersion();
    // What a download in the background would report to. Nothing calls it.
    void DownloadComplete(const QString& url, int httpStatus, const InternetHeaders& headers, const FolderItem& file);
    bool _Edit_Preferences_Action();

    // help/
    bool _Help_Pourbook_Action();
    bool _Help_About_Action();
    // NOLINTEND(bugprone-reserved-identifier)

private:
    void Event_Open();
    void Event_Activate();
};
