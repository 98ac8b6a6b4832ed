#pragma once

// What is measured, one function a subject. Each registers its comparisons; the program has started by then.
void RegisterConnect();
void RegisterFills();
void RegisterKeystrokes();
void RegisterLike();
void RegisterRecipe();
void RegisterSave();
