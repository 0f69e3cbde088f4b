import Tessarine.Controls

// One step of the way to the permission.
NumberedStep {}
