#pragma once

#include <QString>

// A file or folder known by its absolute path, whether it exists or not. A value: copies are independent, and
// nothing on the disk changes but by `SetName`, `CreateAsFolder`, `Delete` and `CopyFileTo`.
//
// A default-constructed item is nil, and so is the parent of "/". Any use of a nil item but `IsNil`, copying and
// assigning throws NilObjectException.
class FolderItem {
public:
    FolderItem() = default;

    // `path` is made absolute from the current folder, and "." and ".." in it are resolved by name.
    explicit FolderItem(const QString& path);

    bool IsNil() const;
    FolderItem Parent() const;
    FolderItem Child(const QString& name) const;

    // Whether a file or folder stands at the path now. A link counts as what it points to.
    bool Exists() const;

    QString Name() const;
    QString AbsolutePath() const;

    // Renames the file or folder on the disk, within its folder; from then on this item has the new name. If another
    // one has that name already, it is kept: it gets the first free number, as in "backup (2).rsd". Throws
    // IOException when there is nothing to rename, for a name that is empty or holds "/", and when the system
    // refuses; then both files stand as before.
    void SetName(const QString& name);

    // Makes the folder and the parents that are missing, each open to the user alone (0700). A folder that is there
    // already stays as it is. Throws IOException when the system refuses.
    void CreateAsFolder() const;

    // Removes the file, or the folder if it is empty. False when the system refuses; then it stays as it is.
    [[nodiscard]] bool Delete() const;

    // Puts a copy of this file, under the same name and open to the user alone (0600), into `folder`. The name
    // appears in the folder only once the copy is whole and on the disk. Throws IOException, with the folder as it
    // was before, when the name is taken there, when this is not a readable file, and when the system refuses.
    void CopyFileTo(const FolderItem& folder) const;

private:
    QString path_; // null when nil
};

// The item of that name in the current folder.
FolderItem GetFolderItem(const QString& name);

// The folder "Preferences" in $XDG_DATA_HOME, or in ~/.local/share where that variable is not an absolute path. It
// need not exist; its parent is where applications keep a user's data.
FolderItem PreferencesFolder();

// The running program's own file, with links resolved.
FolderItem ExecutableFile();
