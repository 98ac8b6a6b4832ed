#pragma once

// The manual: one text for each topic, with an empty line between paragraphs.

struct HelpTopic {
    const char* caption;
    const char* text;
};

namespace HelpTopics {

extern const HelpTopic Intro;
extern const HelpTopic FindDrink;
extern const HelpTopic MatchDrinks;
extern const HelpTopic InBarPanel;
extern const HelpTopic DrinkRatings;
extern const HelpTopic CopyPrint;
extern const HelpTopic DrinkLists;

} // namespace HelpTopics
