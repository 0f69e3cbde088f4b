// What the program does for its user.
TitledRow {}
