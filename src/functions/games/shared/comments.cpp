#include "functions/games/shared/comments.h"

namespace quillfen {

RowListDeclaration commentList(const CommentList& comments)
{
    const std::string comment = comments.word + " Comment";
    RowListDeclaration list;
    list.list = comments.list;
    list.toolbar = comments.toolbar;
    list.label = comments.label;
    list.columns = {comments.label};
    list.menu = comments.menu;
    list.dialog.addTitle = "Add " + comment;
    list.dialog.editTitle = "Edit " + comment;
    list.dialog.labels = {comment};
    list.deletion = {"Delete " + comment + "?", "Do you really want to delete this " + comment + "?",
                     "There must be a minimum of one " + comment};
    list.load = loadOf(comments.file);
    list.save = saveOf(comments.file);
    return list;
}

} // namespace quillfen
