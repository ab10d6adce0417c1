-- Makes one page of a set out of a Markdown document: what leads to a neighbour leads to its page, and the first heading
-- is the page's title.

local function PageName(name)
    return (name:gsub("%.md$", ".html"):gsub("%.md#", ".html#"))
end

function Link(link)
    if link.target:find("^%a+:") then
        return link
    end
    link.target = PageName(link.target)
    link.content = link.content:walk({
        Str = function(text)
            return pandoc.Str(PageName(text.text))
        end,
    })
    return link
end

function Pandoc(document)
    for _, block in ipairs(document.blocks) do
        if block.t == "Header" then
            document.meta.pagetitle = pandoc.utils.stringify(block)
            return document
        end
    end
end
