"""Files that are made: what differs from the disk, and putting it there."""


def stale_of(files):
    """The paths whose files are missing or hold something else."""
    return [path for path, text in files.items() if not path.exists() or path.read_text(encoding="utf-8") != text]


def renew(files, stale, left, root):
    """Writes what is stale, removes what is left over, and names each."""
    for path in stale:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(files[path], encoding="utf-8")
        print("written:", path.relative_to(root))
    for path in left:
        path.unlink()
        print("removed:", path.relative_to(root))
