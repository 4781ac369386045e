-- pandoc: links between documents lead to their HTML.
function Link(link)
    if not link.target:match('^%a+:') then
        link.target = link.target:gsub('%.md$', '.html'):gsub('%.md#', '.html#')
    end
    return link
end
