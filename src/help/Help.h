#pragma once

#include "platform/ui/Canvas.h"
#include "platform/ui/GroupBox.h"
#include "platform/ui/Shapes.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

struct HelpTopic;

// The manual. It has two faces in one place: the list of topics, and the text of one topic. Which one shows is the
// state of the two boxes and nothing else.
class Help : public Window {
public:
    Help();

    static Help& Instance() { return Implicit<Help>(); }

    Canvas Canvas1;
    GroupBox Topics;
    StaticText TopicCaption;
    Oval Oval2, Oval1, Oval3, Oval4, Oval5;
    StaticText Intro, FindDrink, MatchDrinks, InBarPanel, DrinkRatings;
    GroupBox HelpInfo;
    StaticText HelpText, Back, CopyPrint;
    Oval Oval7;
    StaticText DrinkLists;
    Oval Oval8;

private:
    void PlaceControls();
    void DressControls();
    void BindEvents();

    void Event_Open();
    void ShowTopic(const HelpTopic& topic);
    void Back_MouseDown();
};
