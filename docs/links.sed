# What the pages of the reference have differently: links within a page, which it cannot follow, are
# plain text, and the pictures lie beside it.
s/\[([^]]*)\]\(#[^)]*\)/\1/g
s|docs/pictures/|pictures/|g
