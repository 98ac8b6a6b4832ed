#include "help/Help.h"

#include "help/HelpTopics.h"
#include "shell/App.h"
#include "shell/WindowPlacement.h"

namespace {

const QString listCaption = QStringLiteral("Select a help topic from the list below");

} // namespace

void Help::BindEvents() {
    OpenEvent = [this] { Event_Open(); };

    const std::pair<StaticText&, const HelpTopic&> topics[] = {
        {Intro, HelpTopics::Intro},
        {FindDrink, HelpTopics::FindDrink},
        {MatchDrinks, HelpTopics::MatchDrinks},
        {InBarPanel, HelpTopics::InBarPanel},
        {DrinkRatings, HelpTopics::DrinkRatings},
        {CopyPrint, HelpTopics::CopyPrint},
        {DrinkLists, HelpTopics::DrinkLists},
    };
    for (const auto& [label, topic] : topics) {
        label.MouseDown = [this, &topic = topic](int /*x*/, int /*y*/) {
            ShowTopic(topic);
            return false;
        };
    }
    Back.MouseDown = [this](int /*x*/, int /*y*/) {
        Back_MouseDown();
        return false;
    };
}

// The text's box is laid out beside the window and comes to stand over the list here.
void Help::Event_Open() {
    HelpInfo.SetVisible(false);
    HelpInfo.SetLeft(Topics.Left());
    TopicCaption.SetText(listCaption);
    for (StaticText* link :
         {&Intro, &FindDrink, &MatchDrinks, &InBarPanel, &DrinkRatings, &CopyPrint, &DrinkLists, &Back}) {
        link->SetMouseCursor(MouseCursor::FingerPointer);
    }
}

// The focus goes along, so that the keyboard finds the way back.
void Help::ShowTopic(const HelpTopic& topic) {
    Topics.SetVisible(false);
    Back.SetVisible(true);
    HelpInfo.SetVisible(true);
    TopicCaption.SetText(QString::fromLatin1(topic.caption));
    HelpText.SetText(QString::fromLatin1(topic.text));
    Back.SetFocus();
}

void Help::Back_MouseDown() {
    HelpInfo.SetVisible(false);
    Topics.SetVisible(true);
    TopicCaption.SetText(listCaption);
    Intro.SetFocus();
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the handler of a menu item, see App.h
bool App::_Help_Pourbook_Action() {
    auto& window = Help::Instance();
    PlaceUnderMainWindow(window);
    window.Show();
    return false;
}
