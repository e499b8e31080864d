#include "store/filestore.h"

#include "store/nativepath.h"

namespace quillfen {

void makeFolderAndThoseAbove(FileStore& store, const std::string& folder)
{
    const auto above = nativePath(folder).parent_path();
    if (above == nativePath(folder) || store.exists(folder)) // nobody makes a root
        return;
    makeFolderAndThoseAbove(store, pathText(above));
    store.makeFolder(folder);
}

void carryOut(FileStore& store, const StoreChange& change)
{
    switch (change.kind) {
    case StoreChange::Kind::Write:
        return store.write(change.path, change.bytes);
    case StoreChange::Kind::Remove:
        return store.remove(change.path);
    case StoreChange::Kind::MakeFolder:
        return store.makeFolder(change.path);
    }
}

void FileStore::commit(const std::vector<StoreChange>& changes)
{
    carryOutEach(changes, [this](const StoreChange& change) { carryOut(*this, change); });
}

void FileStore::sync(const std::string&) {}

void carryOutEach(const std::vector<StoreChange>& changes,
                  const std::function<void(const StoreChange& change)>& carryOut)
{
    std::size_t done = 0;
    try {
        for (; done < changes.size(); ++done)
            carryOut(changes[done]);
    } catch (const StoreError& failure) {
        std::vector<std::string> changed;
        std::vector<std::string> left;
        for (std::size_t at = 0; at < changes.size(); ++at) {
            if (changes[at].kind != StoreChange::Kind::MakeFolder)
                (at < done ? changed : left).push_back(changes[at].path);
        }
        if (changed.empty())
            throw;
        throw HalfCommitted(failure, std::move(changed), std::move(left));
    }
}

} // namespace quillfen
