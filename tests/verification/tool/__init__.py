"""What makes the pages of docs/verification and holds them against the program."""
