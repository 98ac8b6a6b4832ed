#pragma once

#include <QString>

// Opens the page in the user's browser and returns at once. Without a browser nothing happens.
void ShowURL(const QString& url);
