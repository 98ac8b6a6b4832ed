#pragma once

#include "platform/ui/GroupBox.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

// What to buy next: the ingredients that recipes call for and the bar lacks, the most used first.
class IngredientRecommendations : public Window {
public:
    IngredientRecommendations();

    static IngredientRecommendations& Instance() { return Implicit<IngredientRecommendations>(); }

    StaticText StaticText1;
    GroupBox GroupBox1;
    StaticText IngredientNames;
};
