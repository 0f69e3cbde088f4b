// A paragraph of the privacy notice.
TitledRow {}
