// One thing to know about where the data is and who can read it.
TitledRow {}
