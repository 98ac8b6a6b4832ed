#pragma once

// Gives the pictures that stand in rows the words that a screen reader says for them, and the search field its shape.
void PreparePictures();
