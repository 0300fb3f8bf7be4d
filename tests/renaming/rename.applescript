set posixPath to "/home/ana/the \"new\" \\files\\/scan.p\"d\\f"
set theBase to "say \"hi\" \\n"
set theExt to "p\"d\\f"
tell application "Finder"
    set theItem to (POSIX file posixPath) as alias
    set theContainer to (container of theItem)
    set containerPath to POSIX path of (theContainer as alias)
    set currentName to (name of theItem) as text
    set counter to 0
    repeat
        set counter to counter + 1
        if counter is 1 then
            set candidate to theBase
        else
            set candidate to theBase & " " & counter
        end if
        if theExt is not "" then set candidate to candidate & "." & theExt
        if candidate is currentName then
            return posixPath
        end if
        if not (exists item candidate of theContainer) then
            set name of theItem to candidate
            return containerPath & candidate
        end if
        if counter > 99 then error "Too many files with this name."
    end repeat
end tell
