#include "functions/games/shared/comments.h"

namespace quillfen {

RowListDeclaration commentList(const CommentList& comments)
{
    RowListDeclaration list = listOf(comments.word + " Comment", Fewest::One);
    list.list = comments.list;
    list.toolbar = comments.toolbar;
    list.label = comments.label;
    list.explanation = comments.explanation;
    list.columns = {comments.label};
    list.menu = comments.menu;
    list.load = loadOf(comments.file);
    list.save = saveOf(comments.file);
    return list;
}

} // namespace quillfen
